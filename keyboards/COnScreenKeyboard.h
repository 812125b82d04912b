#pragma once

#include "keyboards/COnScreenKey.h"
#include "keyboards/KeyLayout.h"
#include "keyboards/KeyboardFile.h"
#include "keyboards/KeyboardObserver.h"
#include "keyboards/KeyboardSettings.h"
#include "platform/COnScreenKeyIdentifier.h"
#include "platform/Desktop.h"
#include "platform/FileStore.h"

#include <memory>
#include <optional>
#include <stdexcept>

namespace ondrilo {

/// A keyboard file went against the order or the limits of lines, groups and keys.
class KeyboardLoadFailure : public std::invalid_argument {
  public:
    explicit KeyboardLoadFailure(int lineNumber);
    /// Line of the file, from 1.
    [[nodiscard]] int LineNumber() const { return lineNumber; }

  private:
    int lineNumber;
};

using KeyIdentifiers = std::vector<COnScreenKeyIdentifier>;

/// The keyboard on the screen, without its window: what it holds, how its keys look now, and where they
/// stand. An address past the end of a level reads as an empty key and writes nothing.
class COnScreenKeyboard {
  public:
    /// Takes the place of what was open. A file that cannot be opened gives a keyboard without lines and
    /// without a path; an empty path does the same. Throws KeyboardLoadFailure after taking what stands
    /// before the line that fails.
    void Open(const std::filesystem::path& path, const KeyboardSettings& settings);
    void Close();
    [[nodiscard]] bool IsOpen() const { return open; }
    [[nodiscard]] const std::filesystem::path& Path() const { return path; }

    /// Writes the file; without a path it does nothing. On failure all that was modified stays so. Pictogram
    /// keys with a caption take it into their label, each time anew.
    SaveResult Save();
    SaveResult SaveAs(const std::filesystem::path& newPath);

    /// Settings of the profile, with this keyboard's own heights in place of the profile's.
    [[nodiscard]] const KeyboardSettings& Settings() const { return settings; }
    /// Keys in a default colour go over to the new one. Call LayOut afterwards.
    void ApplySettings(const KeyboardSettings& profileSettings);
    [[nodiscard]] int OwnKeyHeight() const { return ownKeyHeight; }
    [[nodiscard]] int OwnImageHeight() const { return ownImageHeight; }
    /// 0 stands for the profile's height. Saves the file. Call LayOut afterwards.
    SaveResult SetOwnHeights(int keyHeight, int imageHeight);
    [[nodiscard]] const Text& Description() const { return description; }

    [[nodiscard]] const std::vector<COnScreenKeyLine>& Lines() const { return lines; }
    /// The keys as the file held them when it was opened, defaults as -1.
    [[nodiscard]] const std::vector<COnScreenKeyData>& FlatKeys() const { return flatKeys; }

    [[nodiscard]] bool IsModified() const;
    /// The person changed it.
    void MarkModified() { modified = true; }
    void ClearModified();

    // Keys one by one.
    [[nodiscard]] const COnScreenKey& Key(COnScreenKeyIdentifier identifier) const;
    void SetLabel(COnScreenKeyIdentifier identifier, TextView label);
    void SetImageText(COnScreenKeyIdentifier identifier, TextView imageText);
    void SetDescription(COnScreenKeyIdentifier identifier, TextView description);
    void SetOutput(COnScreenKeyIdentifier identifier, TextView output);
    void SetActive(COnScreenKeyIdentifier identifier, int active);
    void SetBackgroundColor(COnScreenKeyIdentifier identifier, Color color); ///< kDefaultColor: the profile's
    void SetTextColor(COnScreenKeyIdentifier identifier, Color color);       ///< kDefaultColor: the profile's
    /// Takes effect at the next LayOut.
    void SetLetters(COnScreenKeyIdentifier identifier, int letters);
    void SetHovered(COnScreenKeyIdentifier identifier, bool hovered);
    void SetHighlighted(COnScreenKeyIdentifier identifier, bool highlighted);
    void SetFlashed(COnScreenKeyIdentifier identifier, bool flashed);
    void SetDwell(COnScreenKeyIdentifier identifier, double dwell);
    void SetPressDot(COnScreenKeyIdentifier identifier, bool showing);

    /// The key whose last press was only heard or shown, if there is one: the next press of it goes on.
    /// Observers are told of the key each time.
    void SetHalfSelected(std::optional<COnScreenKeyIdentifier> identifier);
    [[nodiscard]] const std::optional<COnScreenKeyIdentifier>& HalfSelected() const { return halfSelected; }

    // Many keys, in line, group, key order.
    [[nodiscard]] KeyIdentifiers AllKeys() const;
    [[nodiscard]] KeyIdentifiers KeysOfType(KeyType type) const;
    /// Keys whose output equals the text exactly.
    [[nodiscard]] KeyIdentifiers KeysByOutput(TextView output) const;
    void SetHighlighted(const KeyIdentifiers& keys, bool highlighted);
    void SetLastPageMark(const KeyIdentifiers& keys, bool mark);
    /// Shows on all keys with that output whether what they stand for is on.
    void LightByOutput(TextView output, bool on);

    /// While it is being edited, prediction keys show what they are and no key reacts.
    [[nodiscard]] bool IsEditing() const { return editing; }
    void SetEditing(bool on);

    /// Sizes and places everything anew.
    void LayOut(const TextMeasure& text, const PictureMeasure& pictures);
    void LayOut(const KeyMeasures& measures);
    [[nodiscard]] Size GetSize() const { return size; }
    /// Where the view put the keyboard.
    [[nodiscard]] Point Position() const { return position; }
    void MoveTo(Point newPosition) { position = newPosition; }
    /// The key's rectangle inside the keyboard.
    [[nodiscard]] Rectangle PlaceOf(COnScreenKeyIdentifier identifier) const;
    [[nodiscard]] bool HasOneLine() const { return lines.size() == 1; }
    /// Every line has at most one group, and the first group at most one key.
    [[nodiscard]] bool IsSingleColumn() const;

    /// Dropping the handle ends it; handle and keyboard may go in any order.
    [[nodiscard]] RegistrationHandle Observe(KeyboardObserver& observer);

  private:
    using Observers = std::vector<KeyboardObserver*>;
    struct Observation;

    template <typename Change>
    void ChangeKey(COnScreenKeyIdentifier identifier, Change change);
    template <typename Notice>
    void Tell(Notice notice) const;
    void TakeSettings(const KeyboardSettings& profileSettings);
    void TakeOwnHeights(int keyHeight, int imageHeight);
    void Fill(const KeyboardContent& content, const KeyboardSettings& profileSettings);
    [[nodiscard]] COnScreenKey MakeKey(const COnScreenKeyData& data) const;
    void TellAllKeysChanged() const;
    [[nodiscard]] KeyboardContent Content() const;

    bool open = false;
    bool editing = false;
    std::filesystem::path path;
    KeyboardSettings settings;
    int profileKeyHeight = 0;
    int profileImageHeight = 0;
    int ownKeyHeight = 0;
    int ownImageHeight = 0;
    Text description;
    std::vector<COnScreenKeyLine> lines;
    std::vector<COnScreenKeyData> flatKeys;
    bool modified = false;
    std::optional<COnScreenKeyIdentifier> halfSelected;
    Size size;
    Point position{0, 200};
    std::shared_ptr<Observers> observers = std::make_shared<Observers>();
};

} // namespace ondrilo
