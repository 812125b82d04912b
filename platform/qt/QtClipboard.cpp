#include "platform/qt/QtClipboard.h"

#include "platform/qt/QtConversion.h"

#include <QClipboard>
#include <QGuiApplication>

namespace ondrilo {

Text QtClipboard::GetText() const {
    return FromQString(QGuiApplication::clipboard()->text().replace("\r\n", "\n"));
}

} // namespace ondrilo
