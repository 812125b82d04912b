#include "platform/qt/QtTextMeasure.h"
#include "profiles/CUserProfileProperties.h"
#include "tools/Arguments.h"
#include "tools/draw/DrawKeyboard.h"
#include "tools/draw/LayoutListing.h"

#include <QGuiApplication>

#include <iomanip>
#include <iostream>

namespace ondrilo {
namespace {

constexpr ToolOption kOptions[] = {
    {"--data", "DIR", "the data folder"},
    {"--profile", "NAME", "whose options the keyboard follows"},
    {"--keyboard", "NAME", "the keyboard; otherwise the profile's own"},
    {"--layout", "", "print each key's address, type and rectangle"},
    {"--png", "FILE", "draw a picture"},
    {"--scale", "S", "pixels of the picture for each pixel of the layout (standard: 1)"},
    {"--pdf", "FILE", "draw a sheet of paper"},
    {"--encoding", "NAME", "utf-8 (standard) or windows-1252: how names travel on the terminal"},
    {"--help", "", "this help"},
};

void ShowHelp() {
    std::cout << "keyboard: lists or draws a keyboard as the program lays it out\n\n";
    for (const auto& option : kOptions)
        std::cout << "  " << std::left << std::setw(24)
                  << std::string(option.name) + (option.value.empty() ? "" : " ") + std::string(option.value)
                  << option.help << "\n";
}

void OpenKeyboard(COnScreenKeyboard& keyboard, const std::filesystem::path& file,
                  const CUserProfileProperties& profile) {
    try {
        keyboard.Open(file, MakeKeyboardSettings(profile, {}));
    } catch (const KeyboardLoadFailure& failure) {
        std::cerr << file.string() << ":" << failure.LineNumber() << ": the keyboard ends here\n";
    }
    if (!std::filesystem::exists(file))
        throw std::runtime_error("there is no keyboard " + file.string());
    constexpr int hotKeyRoom = 3;
    for (const auto& key : keyboard.KeysOfType(KeyType::WordPrediction))
        keyboard.SetLetters(key, profile.Get(option::NUMERO_MAXIMO_LETRAS_PALAVRAS_PREDITAS) + hotKeyRoom);
    for (const auto& key : keyboard.KeysOfType(KeyType::SentencePrediction))
        keyboard.SetLetters(key, profile.Get(option::NUMERO_MAXIMO_LETRAS_FRASES_PREDITAS) + hotKeyRoom);
}

double ScaleOf(const Arguments& arguments) {
    const auto text = arguments.Value("--scale").value_or("1");
    bool isNumber = false;
    const double scale = QString::fromStdString(text).toDouble(&isNumber);
    if (!isNumber || scale < 0.1 || scale > 10)
        throw UsageError("--scale is a number from 0.1 to 10");
    return scale;
}

int Run(std::vector<std::string> words) {
    const Arguments arguments(std::move(words), kOptions);
    if (arguments.Has("--help")) {
        ShowHelp();
        return 0;
    }
    const DataFolder folder(arguments.Required("--data"));
    const auto profileName = arguments.FromTerminal(arguments.Required("--profile"));
    CUserProfileProperties profile;
    profile.Load(folder.Path(profileName + ".cfg"));
    const auto given = arguments.Value("--keyboard");
    const auto name = given ? arguments.FromTerminal(*given) : profile.activeKeyboardName;

    COnScreenKeyboard keyboard;
    OpenKeyboard(keyboard, FindKeyboard(folder, name), profile);
    const QtTextMeasure text;
    const QtPictures pictures(folder);
    const auto measures = MeasureKeys(keyboard.Settings().font, text, pictures);
    keyboard.LayOut(measures);

    const auto png = arguments.Value("--png"), pdf = arguments.Value("--pdf");
    if (arguments.Has("--layout") || (!png && !pdf))
        std::cout << arguments.ToTerminal(FromUtf8(ListLayout(keyboard, measures)));
    if (png)
        DrawPng(keyboard, pictures, *png, ScaleOf(arguments));
    if (pdf)
        DrawPdf(keyboard, pictures, *pdf, name);
    return 0;
}

} // namespace
} // namespace ondrilo

int main(int count, char** words) {
    // No display is needed, and none is used if there is one: a drawing does not depend on the screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::vector<std::string> given(words + 1, words + count);
    const QGuiApplication application(count, words);
    try {
        return ondrilo::Run(given);
    } catch (const ondrilo::UsageError& error) {
        std::cerr << "ondrilo-draw: " << error.what() << "\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "ondrilo-draw: " << error.what() << "\n";
        return 1;
    }
}
