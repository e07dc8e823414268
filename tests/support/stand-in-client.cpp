// The client as the tests need it: a real executable in the per-user bundle, recognised by
// the launcher as the client. It appends "<build> <pid>" to ~/.Drovia/started, writes its pid
// file as the demo client does and runs until SIGTERM, or, with DROVIA_STAND_IN=ignore-term,
// ignores it, or with slow-exit leaves two seconds later. It never runs longer than a minute.
#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "install-layout.h"

namespace {

// The build number in the version file of the bundle the executable sits in.
std::string BuildOfOwnBundle(const std::string& executable)
{
    const std::string contents = executable.substr(0, executable.rfind('/')) + "/../";
    std::ifstream info(contents + "Resources/" + layout::kVersionFileName);
    const std::string key = std::string(layout::kBuildKey) + "=";
    for (std::string line; std::getline(info, line);) {
        if (line.compare(0, key.size(), key) == 0)
            return line.substr(key.size());
    }
    return "?";
}

}  // namespace

int main(int, char** argv)
{
    sigset_t term;
    sigemptyset(&term);
    sigaddset(&term, SIGTERM);
    sigprocmask(SIG_BLOCK, &term, nullptr);

    const std::string folder = std::string(std::getenv("HOME")) + "/" + layout::kUserFolder + "/";
    // One write with O_APPEND: the lines of clients that start together never mix.
    std::ofstream(folder + "started", std::ios::app)
        << BuildOfOwnBundle(argv[0]) + " " + std::to_string(getpid()) + "\n";
    const std::string pid_file = folder + layout::kPidFile;
    std::ofstream(pid_file + ".partial") << "pid=" << getpid() << "\n";
    std::rename((pid_file + ".partial").c_str(), pid_file.c_str());  // a reader never sees half a pid

    const std::string behaviour = std::getenv("DROVIA_STAND_IN") ? std::getenv("DROVIA_STAND_IN") : "";
    const timespec lifetime = {60, 0};
    while (sigtimedwait(&term, nullptr, &lifetime) == SIGTERM && behaviour == "ignore-term") {
    }
    if (behaviour == "slow-exit")
        sleep(2);
    return 0;
}
