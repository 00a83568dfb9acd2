// Work in a process of its own, so that nothing it does can touch the next.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace velorix {

enum class WorkerEnd {
    Finished,
    Failed,  // an exception left the work
    Crashed, // its process died
    TimedOut
};

struct WorkerOutcome {
    WorkerEnd End = WorkerEnd::Finished;
    std::string Text; // what the work returned, or why there is nothing
};

struct WorkerLimits {
    int Jobs = 1; // at a time
    std::chrono::milliseconds Time = std::chrono::minutes(1);
};

// Runs Work(0) to Work(Count - 1), each in a process forked for it, and hands the outcomes to Take in that
// order, each as soon as those before it have been taken. Fewer run at a time while the system has no handles
// or processes to spare, and while much waits to be taken. A worker over its time is killed. All of them are
// killed when an exception leaves Take, when an interrupt is noted, which throws Interruption, and when this
// process ends in any other way. Throws std::system_error when not even one process can run.
void RunWorkers(int Count, const WorkerLimits& Limits, const std::function<std::string(int)>& Work,
                const std::function<void(int, const WorkerOutcome&)>& Take);

} // namespace velorix
