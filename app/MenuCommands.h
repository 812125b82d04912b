#pragma once

#include "text/Text.h"

/// The entries of the main window's menu, by their numbers, with what holds for each before it runs.
namespace ondrilo {

namespace menu {
inline constexpr int Copy = 57634, Cut = 57635, Paste = 57637, Undo = 57643, About = 57664, Quit = 57665;
inline constexpr int ExportProfiles = 32916, ImportProfiles = 32917, ImportKeyboards = 32918,
                     ExportKeyboards = 32919, ImportGalleries = 32920, ExportGalleries = 32921,
                     ExportAll = 32922, ImportAll = 32923, ImportPictures = 32924;
inline constexpr int DisableMenu = 32947, HideMenuAndBars = 32951, SystemOptions = 32912;
inline constexpr int NewProfile = 32913, OpenProfile = 32914, RemoveProfile = 32915, ProfileOptions = 32911,
                     CopyProfileOptions = 32910, Words = 32905, Sentences = 32907, Abbreviations = 32906,
                     LearnFromFile = 32908, LearnFromClipboard = 32909;
inline constexpr int NewKeyboard = 32925, NewKeyboardFromModel = 32926, OpenKeyboard = 32927,
                     RemoveKeyboard = 32942, EditKeyboard = 32928, SaveKeyboard = 32929, EndEditing = 32930,
                     KeyboardOptions = 32943, Galleries = 32931;
inline constexpr int StartCooperation = 32932, EndCooperation = 32933;
inline constexpr int ViewLog = 32936, CopyLogs = 32900, RemoveLogs = 32941, RestartMetrics = 32937,
                     Metrics = 32934;
inline constexpr int RecordFeedback = 32899, CopyRecords = 32938, ClearRecords = 32939;
inline constexpr int SimulateWords = 32940, SimulateText = 32948, SimulatePictograms = 32950;
} // namespace menu

struct MenuCommand {
    int number;
    bool guarded;      ///< refused while changes of the system are locked
    bool notInEditing; ///< refused while the on-screen keyboard is edited
    bool available;    ///< false: its work does not exist yet
    TextView prompt;   ///< in the status line while the entry is marked
};

/// Null for a number that is no entry.
[[nodiscard]] const MenuCommand* FindMenuCommand(int number);

} // namespace ondrilo
