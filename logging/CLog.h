#pragma once

#include "logging/EventLog.h"
#include "platform/AppendFile.h"
#include "platform/Clock.h"
#include "platform/DataFolder.h"
#include "platform/Dialogs.h"
#include "platform/LogViewer.h"

namespace ondrilo {

/// Writes what a person does into a file, a line an event, each on its way to the disk before the next. A
/// log without a file, because it could not be opened, is open too, and its events go nowhere; that a disk
/// is full is not told, and costs only the lines that found no place.
class CLog : public EventLog {
  public:
    /// All outlive the log.
    CLog(const DataFolder& folder, const Clock& clock, MessageBoxes& boxes, LogViewer& viewer);

    [[nodiscard]] bool IsOpen() const override { return open; }
    /// Makes the file of that profile and moment, in place of one of the same second, and writes its header
    /// and first event. A log that is still open ends there, without its end.
    void Start(TextView profile) override;
    /// Nothing if no log is open.
    void Write(const LogEvent& event) override;
    /// Writes the last section, closes the file and takes the viewer away; nothing if no log is open.
    void End(const std::vector<Text>& metrics, const std::vector<Text>& finalTexts) override;
    /// Opens the viewer, or says why not.
    void ShowViewer() override;

  private:
    void WriteLine(TextView line);
    void Close();

    const DataFolder& folder;
    const Clock& clock;
    MessageBoxes& boxes;
    LogViewer& viewer;
    AppendFile file;
    bool open = false;
};

} // namespace ondrilo
