// The same work for many things, several at a time.
#ifndef GRADIX_EXPORT_RUNINPARALLEL_H
#define GRADIX_EXPORT_RUNINPARALLEL_H

#include <cstddef>
#include <functional>

// Calls `work` once for every index below `count`, beginning with the lowest, at most `jobs` at a time, and
// returns when all is done. The calling thread works, too; where the system gives fewer threads, there are
// fewer. `work` throws nothing.
void RunInParallel(size_t count, size_t jobs, const std::function<void(size_t index)>& work);

// As many jobs as there are processors for this process; at least 1.
size_t ProcessorCount();

#endif  // GRADIX_EXPORT_RUNINPARALLEL_H
