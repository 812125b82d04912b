#pragma once

#include <QListWidget>

namespace ondrilo {

/// The row that is selected in a list of single choice; -1 for none. Its current row will not do: the focus
/// alone makes one.
[[nodiscard]] inline int SelectedRow(const QListWidget& list) {
    const auto selected = list.selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.front().row();
}

} // namespace ondrilo
