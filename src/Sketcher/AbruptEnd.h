#pragma once

#include <functional>

/// Saves what can be saved when the process exits while this object lives: a toolkit that has lost
/// its display calls exit() from within the event loop. Only one such object at a time.
class AbruptEnd final
{
public:
    /// `function` is called before anything is destroyed. It must use neither the
    /// display nor static tables, which may be gone already. The process
    /// then ends at once, with exit code 1.
    explicit AbruptEnd(std::function<void()> function);
    ~AbruptEnd();
    AbruptEnd(const AbruptEnd&) = delete;
    AbruptEnd& operator=(const AbruptEnd&) = delete;
};
