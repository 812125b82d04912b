#pragma once

namespace ondrilo {

/// The records of the configurator's work: which dialogs were open and which menu commands chosen, by their
/// numbers. This form records nothing.
class UserRecord {
  public:
    virtual ~UserRecord() = default;
    virtual void Open() {}
    virtual void Close() {}
    virtual void MenuSelected(int /*command*/) {}
    virtual void DialogOpened(int /*number*/) {}
    virtual void DialogClosed(int /*number*/) {}
};

} // namespace ondrilo
