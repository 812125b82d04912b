#include "platform/qt/AccessibilityConnection.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QThread>

namespace ondrilo {
namespace {

constexpr auto kStarter = "org.a11y.Bus";
constexpr auto kStarterPath = "/org/a11y/bus";
constexpr auto kProperties = "org.freedesktop.DBus.Properties";
constexpr auto kBus = "org.freedesktop.DBus";
constexpr auto kBusPath = "/org/freedesktop/DBus";
constexpr auto kObjectEvent = "org.a11y.atspi.Event.Object";
constexpr auto kProgramPath = "/org/a11y/atspi/accessible/root";
constexpr auto kNothingPath = "/org/a11y/atspi/null";

constexpr auto kStartPatience = std::chrono::seconds(30); ///< with a bus that is only being started
constexpr qsizetype kLongestPath = 1000;

QDBusMessage Call(const QString& service, const QString& path, const char* interface, const char* method,
                  const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return message;
}

AccessibleObject SourceOf(const QDBusMessage& event) {
    return {event.service(), event.path()};
}

/// The events of all toolkits begin with what it is about and two numbers.
bool IsCredible(const QDBusMessage& event) {
    return event.signature().startsWith("sii") && event.path().size() <= kLongestPath;
}

} // namespace

void AccessibilityConnection::DropQuestion::operator()(QDBusPendingCallWatcher* question) const {
    question->disconnect();
    question->deleteLater(); // it may be just telling its answer
}

AccessibilityConnection::AccessibilityConnection(Events events)
    : events(std::move(events)), name("accessibility-" + QString::number(reinterpret_cast<quintptr>(this))),
      bus(QString()) {
    InBackground([] { QDBusConnection::sessionBus(); }, [this] { FindBus(); });
}

AccessibilityConnection::~AccessibilityConnection() {
    if (isGreeted) // or it would wait for the greeting
        QDBusConnection::disconnectFromBus(name);
}

void AccessibilityConnection::FindBus() {
    const auto session = QDBusConnection::sessionBus();
    const QVariantList on{"org.a11y.Status", "IsEnabled", QVariant::fromValue(QDBusVariant(true))};
    enabling =
        Send(session, Call(kStarter, kStarterPath, kProperties, "Set", on), "", [](const QVariantList&) {});
    address = Send(session, Call(kStarter, kStarterPath, kStarter, "GetAddress", {}), "s",
                   [this](const QVariantList& answer) {
                       if (!answer.isEmpty())
                           Connect(answer[0].toString());
                   });
}

void AccessibilityConnection::Connect(const QString& where) {
    InBackground([where, as = name] { QDBusConnection::connectToBus(where, as); }, [this] { Listen(); });
}

/// A new connection waits for its bus to greet.
void AccessibilityConnection::InBackground(std::function<void()> connect, std::function<void()> connected) {
    auto* thread = QThread::create(std::move(connect));
    QObject::connect(thread, &QThread::finished, this, std::move(connected));
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

void AccessibilityConnection::Listen() {
    isGreeted = true;
    bus = QDBusConnection(name);
    if (!bus.isConnected())
        return;
    bus.connect({}, {}, kObjectEvent, "StateChanged", {"focused"}, {}, this, SLOT(TellFocus(QDBusMessage)));
    bus.connect({}, {}, kObjectEvent, "TextCaretMoved", this, SLOT(TellCaret(QDBusMessage)));
    bus.connect(kBus, kBusPath, kBus, "NameOwnerChanged", this, SLOT(TellGone(QDBusMessage)));
    for (const auto* event : {"object:state-changed:focused", "object:text-caret-moved"})
        bus.send(Call("org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry",
                      "RegisterEvent", {event}));
}

void AccessibilityConnection::TellFocus(const QDBusMessage& event) {
    if (IsCredible(event) && event.arguments()[1].toInt() == 1)
        events.focused(SourceOf(event));
}

void AccessibilityConnection::TellCaret(const QDBusMessage& event) {
    const int offset = IsCredible(event) ? event.arguments()[1].toInt() : -1;
    if (offset >= 0)
        events.caretMoved(SourceOf(event), offset);
}

void AccessibilityConnection::TellGone(const QDBusMessage& event) {
    if (event.signature() == "sss" && event.arguments()[2].toString().isEmpty())
        events.gone(event.arguments()[0].toString());
}

AccessibilityConnection::Question AccessibilityConnection::Send(const QDBusConnection& over,
                                                                const QDBusMessage& message,
                                                                const char* answerForm, Answer answer) {
    const auto patience = message.service() == kStarter ? kStartPatience : kPatience;
    Question question(new QDBusPendingCallWatcher(
        over.asyncCall(message, static_cast<int>(std::chrono::milliseconds(patience).count()))));
    QObject::connect(question.get(), &QDBusPendingCallWatcher::finished, this,
                     [answer = std::move(answer), answerForm](const QDBusPendingCallWatcher* told) {
                         const auto reply = told->reply();
                         const bool isGood = !told->isError() && reply.signature() == answerForm;
                         answer(isGood ? reply.arguments() : QVariantList());
                     });
    return question;
}

AccessibilityConnection::Question AccessibilityConnection::Ask(const AccessibleObject& object,
                                                               const char* interface, const char* method,
                                                               const QVariantList& arguments,
                                                               const char* answerForm, Answer answer) {
    return Send(bus, Call(object.program, object.path, interface, method, arguments), answerForm,
                std::move(answer));
}

AccessibilityConnection::Question
AccessibilityConnection::AskProperty(const AccessibleObject& object, const char* interface,
                                     const char* property, std::function<void(const QVariant&)> answer) {
    return Ask(object, kProperties, "Get", {interface, property}, "v",
               [answer = std::move(answer)](const QVariantList& told) {
                   answer(told.isEmpty() ? QVariant() : told[0].value<QDBusVariant>().variant());
               });
}

AccessibilityConnection::Question AccessibilityConnection::AskNumber(const AccessibleObject& object,
                                                                     const char* interface,
                                                                     const char* property,
                                                                     std::function<void(int)> answer) {
    return AskProperty(object, interface, property, [answer = std::move(answer)](const QVariant& number) {
        answer(number.typeId() == QMetaType::Int ? number.toInt() : -1);
    });
}

AccessibilityConnection::Question
AccessibilityConnection::AskParent(const AccessibleObject& object,
                                   std::function<void(const AccessibleObject&)> answer) {
    return AskProperty(object, kAccessible, "Parent",
                       [parent = AccessibleObject{object.program, {}},
                        answer = std::move(answer)](const QVariant& told) mutable {
                           const auto reference = told.value<QDBusArgument>();
                           if (reference.currentSignature() == "(so)") {
                               QString program; // a good one names itself
                               QDBusObjectPath path;
                               reference.beginStructure();
                               reference >> program >> path;
                               if (path.path() != kProgramPath && path.path() != kNothingPath)
                                   parent.path = path.path();
                           }
                           answer(parent);
                       });
}

AccessibilityConnection::Question
AccessibilityConnection::AskProcess(const QString& program, std::function<void(std::uint32_t)> answer) {
    return Ask({kBus, kBusPath}, kBus, "GetConnectionUnixProcessID", {program}, "u",
               [answer = std::move(answer)](const QVariantList& told) {
                   answer(told.isEmpty() ? 0 : told[0].toUInt());
               });
}

} // namespace ondrilo
