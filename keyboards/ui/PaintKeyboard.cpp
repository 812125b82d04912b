#include "keyboards/ui/PaintKeyboard.h"

#include "keyboards/ui/KeyPainter.h"
#include "keyboards/ui/KeyPicture.h"
#include "platform/qt/QtConversion.h"

namespace ondrilo {

void PaintKeyboard(QPainter& painter, const COnScreenKeyboard& keyboard, const QtPictures& pictures) {
    for (const auto& identifier : keyboard.AllKeys()) {
        const auto& key = keyboard.Key(identifier);
        const auto face = MakeKeyFace(key, keyboard.Settings(), keyboard.IsEditing(),
                                      LoadKeyPicture(key.data.label, pictures));
        PaintKey(painter, ToQRect(keyboard.PlaceOf(identifier)), face);
    }
}

} // namespace ondrilo
