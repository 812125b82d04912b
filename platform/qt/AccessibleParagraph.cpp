#include "platform/qt/AccessibleParagraph.h"

#include "platform/qt/QtConversion.h"

#include <algorithm>
#include <utility>

namespace ondrilo {
namespace {

constexpr auto kRest = std::chrono::milliseconds(80); ///< until program and caret stand still
constexpr int kReach = 2000;                          ///< characters on either side of the caret

bool IsLineBreak(QChar c) {
    return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

QString LastLine(const QString& text) {
    const auto lineBreak = std::find_if(text.rbegin(), text.rend(), IsLineBreak);
    return text.last(std::min<qsizetype>(lineBreak - text.rbegin(), kReach));
}

QString FirstLine(const QString& text) {
    const auto lineBreak = std::find_if(text.begin(), text.end(), IsLineBreak);
    return text.first(std::min<qsizetype>(lineBreak - text.begin(), kReach));
}

/// A picture in the text keeps words apart, as a blank does, and so do the blanks that keep a line together,
/// with which browsers write each blank at an end. Marks that nobody sees are no part of a word.
Text ToText(const QString& text) {
    QString seen;
    for (const QChar c : text)
        if (c == QChar::ObjectReplacementCharacter || c.category() == QChar::Separator_Space)
            seen += u' ';
        else if (c.category() != QChar::Other_Format)
            seen += c;
    return FromQString(seen);
}

} // namespace

AccessibleParagraph::AccessibleParagraph(AccessibilityConnection& connection,
                                         std::function<const AccessibleFocus*()> focus)
    : connection(connection), focus(std::move(focus)) {
    rest.setSingleShot(true);
    rest.setInterval(kRest);
    QObject::connect(&rest, &QTimer::timeout, &rest, [this] { Begin(); });
}

void AccessibleParagraph::Read(Answer wanted) {
    answer = std::move(wanted);
    Renew();
}

void AccessibleParagraph::Renew() {
    question.reset();
    if (answer)
        rest.start();
}

void AccessibleParagraph::Drop() {
    answer = nullptr;
    question.reset();
    rest.stop();
}

void AccessibleParagraph::Begin() {
    const auto* text = focus();
    if (text && text->kind == AccessibleFocus::Kind::Awaited)
        return Renew();
    if (!text || text->kind != AccessibleFocus::Kind::Other)
        return Drop();
    object = text->object;
    AskForSelection();
}

/// The next letter replaces what is selected, and with it the paragraph that stands there now.
void AccessibleParagraph::AskForSelection() {
    question = connection.Ask(object, AccessibilityConnection::kText, "GetNSelections", {}, "i",
                              [this](const QVariantList& selections) {
                                  if (!selections.isEmpty() && selections[0].toInt() > 0)
                                      Drop();
                                  else
                                      AskForOffset();
                              });
}

void AccessibleParagraph::AskForOffset() {
    question = connection.AskNumber(object, AccessibilityConnection::kText, "CaretOffset", [this](int told) {
        caret = told;
        AskForLength();
    });
}

void AccessibleParagraph::AskForLength() {
    question =
        connection.AskNumber(object, AccessibilityConnection::kText, "CharacterCount", [this](int length) {
            if (caret < 0 || length < caret)
                return Drop();
            // In two pieces, so that it does not matter in which units the program counts its characters. A
            // piece that ends behind the text is empty for some toolkits.
            const int end = caret + std::min(length - caret, kReach);
            AskForText(std::max(caret - kReach, 0), caret, [this, end](const QString& before) {
                AskForText(caret, end, [this, before](const QString& behind) { Tell(before, behind); });
            });
        });
}

void AccessibleParagraph::AskForText(int from, int to, std::function<void(const QString&)> told) {
    question = connection.Ask(object, AccessibilityConnection::kText, "GetText", {from, to}, "s",
                              [this, told = std::move(told)](const QVariantList& piece) {
                                  if (piece.isEmpty())
                                      Drop();
                                  else
                                      told(piece[0].toString());
                              });
}

void AccessibleParagraph::Tell(const QString& before, const QString& behind) {
    const Text left = ToText(LastLine(before));
    const auto tell = std::exchange(answer, nullptr);
    Drop();
    tell({left + ToText(FirstLine(behind)), left.size()});
}

} // namespace ondrilo
