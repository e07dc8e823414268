#ifndef OWN_NAMESPACE_H
#define OWN_NAMESPACE_H

// True when the test runs in a PID namespace of its own (see
// own-namespace-main.cpp): then no pid it reads can name a process outside,
// and every process it starts ends with it.
bool InOwnPidNamespace();

#endif  // OWN_NAMESPACE_H
