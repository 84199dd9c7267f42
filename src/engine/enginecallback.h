// What the engine's callback does, and how it finds its run: it gets no argument, so the run of its thread is noted,
// and the latest one for engines that call back on a thread of their own. These are the only values of the component
// that belong to no object.
#pragma once

namespace tarq {

struct RunnableModel;

/// Notes a run as that of the calling thread and as the latest one; at its end the thread's is again what it was.
class NotedRun {
public:
    /// Throws std::bad_alloc where the thread has no memory for the note.
    explicit NotedRun(RunnableModel& model);
    NotedRun(const NotedRun&) = delete;
    NotedRun& operator=(const NotedRun&) = delete;
    ~NotedRun();

    /// For whoever has stopped the thread of a run for good.
    static void forget(RunnableModel& model) noexcept;

private:
    RunnableModel& model_;
    RunnableModel* const outer_;
};

/// Registered with the engine, which calls it at its break points: passes on a requested stop and refreshes the result
/// values. Does nothing when no run is in progress.
extern "C" void tarqEngineCallback();

/// Asks the engine of a run for the 14 result values and stores what it delivers. The engine holds xzlbnd, xzubnd and
/// xzbest in minimization form, so they change sign when maximizing.
void readResultValues(RunnableModel& model);

}  // namespace tarq
