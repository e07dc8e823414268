#ifndef INSTALL_LAYOUT_H
#define INSTALL_LAYOUT_H

// Names of the bundle's and the per-user installation's files. The launcher,
// the demo client and the tests spell them from here only; each path is
// joined from these with "/".
namespace layout {

// In the home folder: the per-user installation folder.
inline constexpr char kUserFolder[] = ".Drovia";

// In the per-user installation folder.
inline constexpr char kBundleName[] = "Drovia.app";
inline constexpr char kLogFolder[] = "log";
inline constexpr char kLogFile[] = "launcher.log";
// Written by the running client ("pid=<its pid>"); the launcher only reads it.
inline constexpr char kPidFile[] = "ui.pid";
// Locked by the launcher while it inspects, upgrades or starts the client.
inline constexpr char kLockFile[] = "launcher.lock";
// The launcher's own record of the last client it started ("pid=<pid>").
inline constexpr char kLaunchRecord[] = "launched.pid";
// The launcher's runtime folder (mode 0700) where the session has no private one.
inline constexpr char kRuntimeFolder[] = "run";
// A folder of an older layout, deleted on every run.
inline constexpr char kAgedAppFolder[] = "app";
// A moved-aside bundle is the bundle's name with this suffix and a number.
inline constexpr char kBackupSuffix[] = "_tmp";
inline constexpr int kBackupNames = 10;
// The bundle's name with this suffix: where an upgrade unpacks the package,
// and where the tree it replaced waits to be removed.
inline constexpr char kStagingSuffix[] = "_new";

// In a bundle, the launcher's own or the per-user one.
inline constexpr char kResourcesFolder[] = "Contents/Resources";
inline constexpr char kClientExecutable[] = "Contents/MacOS/cloud-ui";
inline constexpr char kVersionFileName[] = "INFO";
inline constexpr char kVersionGroup[] = "Version";
inline constexpr char kBuildKey[] = "build_version";

// In the launcher's bundle.
inline constexpr char kPackageArchive[] = "package/drovia.vpk";  // in the resources
inline constexpr char kLevelFile[] = "log/launcher.debug";
inline constexpr char kDialogIcon[] = "images/ico_72_drovia.png";  // in the resources

}  // namespace layout

#endif  // INSTALL_LAYOUT_H
