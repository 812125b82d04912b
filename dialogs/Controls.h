#pragma once

#include <QLabel>
#include <QPushButton>

namespace ondrilo {

/// A button that Enter in another control does not press.
[[nodiscard]] inline QPushButton* CreateButton(const QString& text, const char* objectName) {
    auto* button = new QPushButton(text);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    return button;
}

/// A label that names its control and, by its mnemonic, leads to it.
[[nodiscard]] inline QLabel* CreateLabel(const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace ondrilo
