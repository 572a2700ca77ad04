// Processes that fork() made after the library had used threads.
#pragma once

namespace half_utils {

// Whether this is such a process. It has none of oneTBB's threads, though oneTBB goes on as if it had, and what one of
// them was about to do when the process was copied is never done: a loop given to oneTBB can wait for it for ever. So
// every loop runs on the calling thread there, which changes no result. Asked by each loop before it forks: the first
// one to ask is the first to use threads.
bool threadsAreLost();

}  // namespace half_utils
