#include "app/CTessivorApp.h"

#include "app/DataFolderSetup.h"

namespace ondrilo {

CTessivorApp::CTessivorApp(UserFolders folders, InstanceLock& lock, MessageBoxes& boxes)
    : folders(std::move(folders)), lock(lock), boxes(boxes) {
}

CTessivorApp::Start CTessivorApp::InitInstance() {
    if (!lock.Acquire(folders.LockFile()))
        return Start::AlreadyRunning;
    const auto problem = PrepareDataFolder(folders);
    if (problem.empty())
        return Start::Ready;
    boxes.Show(problem);
    boxes.Show("Não foi possível copiar os ficheiros do Ondrilo para este utilizador."_w);
    return Start::Failed;
}

} // namespace ondrilo
