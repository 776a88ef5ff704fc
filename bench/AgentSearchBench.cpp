// How long the pane's search for the agent takes among 1,000 processes of this user, against a bare walk over the same
// process folders that reads each one's executable link.

#include "bench/Median.h"
#include "pane/KTXLumarooPreferencePane.h"

#include <QElapsedTimer>
#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int processCount = 1000;
constexpr int rounds = 101;

class ManyProcesses
{
public:
    ManyProcesses()
    {
        while (processes_.size() < processCount && start()) { }
    }
    ~ManyProcesses()
    {
        for (const pid_t process : processes_)
            kill(process, SIGKILL);
        for (const pid_t process : processes_)
            waitpid(process, nullptr, 0);
    }
    bool areComplete() const { return processes_.size() == processCount; }

private:
    bool start()
    {
        const pid_t process = fork();
        if (process == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            for (;;)
                pause();
        }
        if (process > 0)
            processes_.push_back(process);
        return process > 0;
    }

    std::vector<pid_t> processes_;
};

/// What no search can do without: the folders' names, and each one's link.
bool bareWalk()
{
    int read = 0;
    DIR *folders = opendir("/proc");
    std::array<char, PATH_MAX> link;
    while (const dirent *folder = readdir(folders)) {
        if (folder->d_name[0] < '0' || folder->d_name[0] > '9')
            continue;
        const std::string path = std::string("/proc/") + folder->d_name + "/exe";
        read += readlink(path.c_str(), link.data(), link.size()) > 0;
    }
    closedir(folders);
    return read >= processCount;
}

/// The pane, whose search finds no agent and so looks at every process.
class Searcher : public KTXLumarooPreferencePane
{
public:
    using KTXLumarooPreferencePane::agentPSN;
};

template <typename Walk>
double microseconds(Walk walk)
{
    QElapsedTimer timer;
    timer.start();
    if (!walk())
        std::exit(1);
    return double(timer.nsecsElapsed()) / 1000;
}

} // namespace

int main()
{
    const ManyProcesses processes;
    if (!processes.areComplete()) {
        std::fputs("the system does not allow so many processes\n", stderr);
        return 1;
    }
    const Searcher pane;
    std::vector<double> walks, searches;
    for (int round = 0; round < rounds; ++round) {
        walks.push_back(microseconds(bareWalk));
        searches.push_back(microseconds([&pane] { return pane.agentPSN() == kNoProcess; }));
    }
    std::printf("search for the agent among %d processes: %.0f us; bare walk: %.0f us; ratio %.2f "
                "(goal: at most 2; medians of %d)\n",
        processCount, median(searches), median(walks), median(searches) / median(walks), rounds);
    return 0;
}
