#include "dialogs/LogLines.h"

#include <algorithm>

namespace ondrilo {

int LogLines::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines.size());
}

QVariant LogLines::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::SizeHintRole)
        return rowSize;
    return role == Qt::DisplayRole ? lines[static_cast<std::size_t>(index.row())] : QVariant();
}

void LogLines::Append(const QStringList& newLines, QSize newRowSize) {
    const int count = static_cast<int>(newLines.size());
    MakeRoom(count);
    rowSize = newRowSize;
    beginInsertRows({}, rowCount(), rowCount() + count - 1);
    lines.insert(lines.end(), newLines.begin(), newLines.end());
    endInsertRows();
}

void LogLines::MakeRoom(int wanted) {
    const int surplus = std::min(rowCount(), rowCount() + wanted - kMostLines);
    if (surplus <= 0)
        return;
    beginRemoveRows({}, 0, surplus - 1);
    lines.erase(lines.begin(), lines.begin() + surplus);
    endRemoveRows();
}

void LogLines::Clear() {
    beginResetModel();
    lines.clear();
    endResetModel();
}

} // namespace ondrilo
