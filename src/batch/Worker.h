// Work in a process of its own, so that nothing it does can touch the next.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace velorix {

struct WorkerOutcome {
    std::string Output; // what the work returned; empty when it failed
    std::string Error;  // why there is no output
};

// Runs Work(0) to Work(Count - 1), each in a process forked for it, at most Jobs at a time (fewer while the
// system has no handles or processes to spare), and returns the outcomes in that order. An exception that
// leaves the work, and a process that dies, become that outcome's error. Ended is told after each how many
// have ended. Throws std::system_error when not even one process can run.
std::vector<WorkerOutcome> RunWorkers(int Count, int Jobs, const std::function<std::string(int)>& Work,
                                      const std::function<void(int)>& Ended);

} // namespace velorix
