#ifndef CLIENT_LAUNCH_H
#define CLIENT_LAUNCH_H

#include <QString>

// The client's executable inside a Drovia bundle.
inline constexpr char kBundleClientExecutable[] = "Contents/MacOS/cloud-ui";

// Starts the client that the bundle at bundle_path holds, without arguments
// and without waiting for it. True when the request was accepted.
// macOS asks the desktop to open the bundle; elsewhere, where opening a
// folder only shows it in a file manager, the executable is started directly.
bool StartClientBundle(const QString& bundle_path);

#endif  // CLIENT_LAUNCH_H
