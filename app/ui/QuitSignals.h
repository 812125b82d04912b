#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace ondrilo {

/// Turns the signals with which a desktop ends a program (hang-up, interrupt, terminate) into a call from the
/// event loop. One at a time.
class QuitSignals {
  public:
    explicit QuitSignals(std::function<void()> quit);
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;
    ~QuitSignals();

  private:
    int ends[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
};

} // namespace ondrilo
