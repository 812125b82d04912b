#pragma once

#include "keyboards/COnScreenKeyboard.h"
#include "platform/qt/QtPictures.h"

namespace ondrilo {

/// Both throw std::runtime_error if the file cannot be written.

/// A picture of `scale` pixels for each pixel of the layout.
void DrawPng(const COnScreenKeyboard& keyboard, const QtPictures& pictures, const std::string& file,
             double scale);
/// One A4 sheet, upright or across, that the keyboard fills.
void DrawPdf(const COnScreenKeyboard& keyboard, const QtPictures& pictures, const std::string& file,
             TextView title);

} // namespace ondrilo
