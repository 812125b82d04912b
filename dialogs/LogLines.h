#pragma once

#include <QAbstractListModel>
#include <QSize>
#include <QStringList>

#include <deque>

namespace ondrilo {

/// The last lines of the event log, a row each, all of one size.
class LogLines : public QAbstractListModel {
    Q_OBJECT

  public:
    /// So many rows are kept; the oldest make room.
    static constexpr int kMostLines = 5000;

    using QAbstractListModel::QAbstractListModel;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    /// At the end; `newRowSize` in pixels is that of every row from now on.
    void Append(const QStringList& newLines, QSize newRowSize);
    void Clear();

  private:
    void MakeRoom(int wanted);

    std::deque<QString> lines;
    QSize rowSize;
};

} // namespace ondrilo
