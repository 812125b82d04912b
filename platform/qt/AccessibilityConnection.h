#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

namespace ondrilo {

/// An object of another program, by the program's name on the accessibility bus and its path there.
struct AccessibleObject {
    QString program;
    QString path;
    bool operator==(const AccessibleObject&) const = default;
};

/// The connection to the desktop's accessibility bus: what programs tell by themselves, and questions to
/// them. Nothing waits, and what other programs send is looked at before it is believed.
class AccessibilityConnection : public QObject {
    Q_OBJECT
  public:
    struct Events {
        std::function<void(const AccessibleObject&)> focused;
        std::function<void(const AccessibleObject&, int offset)> caretMoved;
        std::function<void(const QString& program)> gone;
    };
    /// Asks the desktop that programs tell of their texts, has the bus started if need be and connects to it,
    /// all in the background.
    explicit AccessibilityConnection(Events events);
    ~AccessibilityConnection() override;

    struct DropQuestion {
        void operator()(QDBusPendingCallWatcher* question) const;
    };
    /// A question that is under way; whoever drops it gets no answer.
    using Question = std::unique_ptr<QDBusPendingCallWatcher, DropQuestion>;
    /// What was answered; empty after an error, an answer of another form, or when none came in time.
    using Answer = std::function<void(const QVariantList&)>;

    /// `answerForm` is the signature of the answer that is expected.
    [[nodiscard]] Question Ask(const AccessibleObject& object, const char* interface, const char* method,
                               const QVariantList& arguments, const char* answerForm, Answer answer);
    /// A number that the object keeps; nothing or a negative one if it has none.
    [[nodiscard]] Question AskNumber(const AccessibleObject& object, const char* interface,
                                     const char* property, std::function<void(int)> answer);
    /// The object around it; with an empty path if there is none but the program itself.
    [[nodiscard]] Question AskParent(const AccessibleObject& object,
                                     std::function<void(const AccessibleObject&)> answer);
    /// The process behind a name on the bus; 0 if nobody knows.
    [[nodiscard]] Question AskProcess(const QString& program, std::function<void(std::uint32_t)> answer);

    static constexpr auto kPatience = std::chrono::milliseconds(1000); ///< with one answer

    static constexpr auto kAccessible = "org.a11y.atspi.Accessible";
    static constexpr auto kComponent = "org.a11y.atspi.Component";
    static constexpr auto kText = "org.a11y.atspi.Text";

  private slots:
    void TellFocus(const QDBusMessage& event);
    void TellCaret(const QDBusMessage& event);
    void TellGone(const QDBusMessage& event);

  private:
    Question Send(const QDBusConnection& bus, const QDBusMessage& message, const char* answerForm,
                  Answer answer);
    /// `answer` gets no value if there is none.
    [[nodiscard]] Question AskProperty(const AccessibleObject& object, const char* interface,
                                       const char* property, std::function<void(const QVariant&)> answer);
    void InBackground(std::function<void()> connect, std::function<void()> connected);
    void FindBus();
    void Connect(const QString& where);
    void Listen();

    Events events;
    QString name;
    QDBusConnection bus;
    bool isGreeted = false; ///< by the accessibility bus
    Question address;
    Question enabling;
};

} // namespace ondrilo
