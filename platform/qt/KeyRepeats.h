#pragma once

#include <QObject>

#include <set>

class QKeyEvent;

namespace ondrilo {

/// Tells the repeats of a held key from presses, for all windows of the program. Qt would know a repeat by
/// the release before it, with the next press waiting already; on a busy computer the press comes too late,
/// and a switch that is held would seem to be pressed again and again.
class KeyRepeats : public QObject {
  public:
    KeyRepeats();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool PassOnAsRepeat(QObject* window, QKeyEvent& press);

    std::set<quint32> down; // scan codes
};

} // namespace ondrilo
