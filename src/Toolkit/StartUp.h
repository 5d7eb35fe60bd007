// The toolkit's start.
#ifndef GRADIX_STARTUP_H
#define GRADIX_STARTUP_H

// Starts the toolkit in the session's language: alerts, help book, item types, list definitions. 1 on
// success, 0 on failure. Every options dialog starts it; a second start in a process finds its item types
// registered and gives 0, and what the first one registered stays in force.
int _InitLumoLibrary(void* eventTarget);

#endif  // GRADIX_STARTUP_H
