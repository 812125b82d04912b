#include "tools/draw/LayoutListing.h"

#include "keyboards/KeySymbol.h"

#include <sstream>

namespace ondrilo {
namespace {

std::string MeasuredWidth(const COnScreenKeyData& key, const KeyMeasures& measures) {
    if (KeyTypeOf(key.type) != KeyType::Normal || FindSymbolOutput(key.output))
        return "-";
    return std::to_string(measures.text.Width(measures.font, key.label));
}

} // namespace

std::string ListLayout(const COnScreenKeyboard& keyboard, const KeyMeasures& measures) {
    std::ostringstream list;
    const auto size = keyboard.GetSize();
    list << "# font\t" << ToUtf8(measures.font.name) << "\t" << measures.font.size << " points\n"
         << "# character width\t" << measures.charWidth << "\n"
         << "# text height\t" << measures.textHeight << "\n"
         << "# keyboard\t" << size.width << "\t" << size.height << "\n"
         << "# line\tgroup\tkey\ttype\tx\ty\twidth\theight\ttext width\tlabel\n";
    for (const auto& identifier : keyboard.AllKeys()) {
        const auto& key = keyboard.Key(identifier).data;
        const auto place = keyboard.PlaceOf(identifier);
        list << identifier.line << '\t' << identifier.group << '\t' << identifier.key << '\t'
             << ToUtf8(key.type) << '\t' << place.x << '\t' << place.y << '\t' << place.width << '\t'
             << place.height << '\t' << MeasuredWidth(key, measures) << '\t' << ToUtf8(key.label) << '\n';
    }
    return list.str();
}

} // namespace ondrilo
