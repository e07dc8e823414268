#!/usr/bin/env python3
"""Measures what a user waits for when Drovia.app starts; bench/run.sh builds
what it needs and calls it. Every run uses a copy of the built bundle and a
temporary HOME below the work folder, never the real home.

    bench.py <build folder> <work folder> [upgrade|replace|remove|launch|memory|gui|all|report] ...
    bench.py <build folder> <work folder> upgrade:zip,tar.zst    (some formats again)

Results go to <work folder>/results: one TSV per benchmark, results.md with
the tables, upgrade.png and replace.png with the plots.
"""
import os
import re
import shutil
import statistics
import subprocess
import sys
import time

FORMATS = ("tar.gz", "tar.xz", "tar.zst", "zip", "zip-stored")
CHOSEN_FORMAT = "zip"          # what scripts/make-package.sh makes by default
CLIENT_SHAPE = (250, 10000)    # unpacked MB, entries
MEMORY_SHAPES = ((100, 4000), (1000, 40000))
OLD_CLIENT_SHAPE = (1, 40)     # the older installation an upgrade replaces
# Replacing an installation as large as the package, the upgrade users of a
# large client meet, and deleting such a tree.
REPLACE_SHAPES = ((250, 10000), (250, 100000))
UPGRADE_PAIRS = 5
REPLACE_PAIRS = 4
REMOVE_PAIRS = 5
LAUNCH_PAIRS = 150
MEMORY_RUNS = 2
GUI_RUNS = 3
OLD_BUILD = "1"
BUNDLE = "Drovia.app"
INSTALLED = os.path.join(".Drovia", BUNDLE)
MACOS = os.path.join("Contents", "MacOS")
RESOURCES = os.path.join("Contents", "Resources")
PACKAGE = os.path.join(RESOURCES, "package", "drovia.vpk")
MIB = 1 << 20
# The generated client writes the time it started into the file this names.
STAMP_VARIABLE = "DROVIA_BENCH_STAMP"
STAMP_TIMEOUT_SECONDS = 10
STAMP_POLL_SECONDS = 0.01
# Every timed run starts once everything is written back and the disk has had
# a moment.
SETTLE_SECONDS = 6
# Replacing and deleting trees run on a journaled ext4 file system made for
# the benchmark, as users' home folders have: ext4 without a journal (this
# machine's own) passes over inodes freed in the last minutes, so any run
# that follows a large deletion there takes several times as long. Its image
# is written in full and its inode tables at once, so that no run pays for
# the host's first write to a block or for the kernel's background zeroing.
FRESH_FS_MIB = 3 << 10
FRESH_FS_INODES = 1000000
HERE = os.path.dirname(os.path.abspath(__file__))
MAKE_TREE = os.path.join(HERE, "make-client-tree.py")
MAKE_PACKAGE = os.path.join(HERE, "..", "scripts", "make-package.sh")


class Paths:
    def __init__(self, build, work):
        self.build_bundle = os.path.join(build, BUNDLE)
        self.helpers = os.path.join(build, "bench")
        self.work = work
        self.results = os.path.join(work, "results")
        os.makedirs(self.results, exist_ok=True)


def run_checked(args, **kwargs):
    subprocess.run(args, check=True, **kwargs)


def remove_tree(path):
    """rm -rf: Python's rmtree takes minutes over 100,000 entries."""
    run_checked(["rm", "-rf", path])


def settle():
    run_checked(["sync"])
    time.sleep(SETTLE_SECONDS)


class FreshFileSystem:
    """A journaled ext4 file system in an image below the work folder,
    loop-mounted over its run folder for as long as the block lasts (root)."""

    def __init__(self, paths):
        self.image = os.path.join(paths.work, "fresh-fs.img")
        self.mount_point = os.path.join(paths.work, "run")

    def __enter__(self):
        os.makedirs(self.mount_point, exist_ok=True)
        run_checked(["dd", "if=/dev/zero", "of=" + self.image, "bs=1M", "count=%d" % FRESH_FS_MIB,
                     "conv=fsync", "status=none"])
        run_checked(["mkfs.ext4", "-q", "-N", str(FRESH_FS_INODES),
                     "-E", "lazy_itable_init=0,lazy_journal_init=0", self.image])
        run_checked(["mount", "-o", "loop", self.image, self.mount_point])
        return self

    def __exit__(self, *exception):
        run_checked(["umount", "--lazy", self.mount_point])
        os.remove(self.image)


def bundle_build(paths):
    with open(os.path.join(paths.build_bundle, RESOURCES, "INFO")) as info:
        return re.search(r"build_version=(\d+)", info.read()).group(1)


def set_build(tree, build):
    path = os.path.join(tree, RESOURCES, "INFO")
    with open(path) as info:
        text = info.read()
    with open(path, "w") as info:
        info.write(re.sub(r"build_version=\d+", "build_version=" + build, text))


def tree_for(paths, shape):
    megabytes, entries = shape
    tree = os.path.join(paths.work, "trees", "%dM-%d" % shape, BUNDLE)
    if not os.path.isdir(tree):
        run_checked([sys.executable, MAKE_TREE, tree + ".part", str(megabytes), str(entries),
                     bundle_build(paths)])
        os.rename(tree + ".part", tree)
    return tree


def package_for(paths, shape, fmt):
    package = os.path.join(paths.work, "packages", "%dM-%d.%s.vpk" % (shape + (fmt,)))
    if not os.path.isfile(package):
        run_checked([MAKE_PACKAGE, tree_for(paths, shape), package, fmt])
    return package


def unpacked_bytes(tree):
    total = 0
    for folder, _, files in os.walk(tree):
        for name in files:
            total += os.lstat(os.path.join(folder, name)).st_size
    return total


def timed(args, env=None):
    """Wall seconds, CPU seconds (user and system) and peak resident KiB of
    one child that must succeed."""
    start = time.perf_counter()
    child = subprocess.Popen(args, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    elapsed = time.perf_counter() - start
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        raise RuntimeError("%s exited with %d" % (args[0], child.returncode))
    return elapsed, usage.ru_utime + usage.ru_stime, usage.ru_maxrss


def read_stamp(path):
    """The time the client wrote; it runs on after the launcher has ended."""
    deadline = time.time() + STAMP_TIMEOUT_SECONDS
    while time.time() < deadline:
        if os.path.exists(path):
            with open(path) as stamp:
                text = stamp.read()
            if text.endswith("\n"):
                return float(text)
        time.sleep(STAMP_POLL_SECONDS)
    raise RuntimeError("no client stamped %s (trees generated before the client stamped its start "
                       "must be deleted from the work folder)" % path)


class Sandbox:
    """A copy of the built bundle carrying a given package, and a HOME."""

    def __init__(self, paths, name, package):
        self.root = os.path.join(paths.work, "run", name)
        shutil.rmtree(self.root, ignore_errors=True)
        self.bundle = os.path.join(self.root, BUNDLE)
        shutil.copytree(paths.build_bundle, self.bundle, symlinks=True)
        os.remove(os.path.join(self.bundle, PACKAGE))
        shutil.copyfile(package, os.path.join(self.bundle, PACKAGE))
        for helper in ("bare-dialog", "gui-gap"):
            shutil.copy2(os.path.join(paths.helpers, helper), os.path.join(self.bundle, MACOS))
        self.package = package
        self.home = os.path.join(self.root, "home")
        self.installed = os.path.join(self.home, INSTALLED)
        runtime = os.path.join(self.root, "runtime")
        os.makedirs(runtime, mode=0o700)
        self.env = dict(os.environ, HOME=self.home, QT_QPA_PLATFORM="offscreen",
                        XDG_RUNTIME_DIR=runtime)
        self.env.pop("DISPLAY", None)

    def program(self, name):
        return os.path.join(self.bundle, MACOS, name)

    def install(self, build, tree=None):
        """An installation under the given build: a copy of tree, or the
        package's own content."""
        remove_tree(self.home)
        if tree:
            shutil.copytree(tree, self.installed, symlinks=True)
        else:
            os.makedirs(self.installed)
            run_checked(["bsdtar", "-xf", self.package, "-C", self.installed])
        set_build(self.installed, build)
        settle()

    def installed_build(self):
        with open(os.path.join(self.installed, RESOURCES, "INFO")) as info:
            return re.search(r"build_version=(\d+)", info.read()).group(1)

    def log_errors(self):
        """Error lines of the launcher's log; a run without a log has none."""
        log = os.path.join(self.home, ".Drovia", "log", "launcher.log")
        if not os.path.exists(log):
            return []
        with open(log, errors="replace") as lines:
            return [line for line in lines if "[ERROR]" in line]

    def check_upgraded(self, build):
        if self.installed_build() != build or self.log_errors():
            raise RuntimeError("upgrade in %s failed: %s" % (self.root, self.log_errors()))

    def run_launcher(self):
        return timed([self.program("launcher")], self.env)

    def run_bsdtar(self):
        target = os.path.join(self.root, "bsdtar-out")
        shutil.rmtree(target, ignore_errors=True)
        os.makedirs(target)
        settle()
        return timed(["bsdtar", "-xf", self.package, "-C", target])

    def run_stamped(self):
        """Seconds until the client started and until the launcher ended, and
        the launcher's peak resident KiB."""
        stamp = os.path.join(self.root, "client-started")
        if os.path.exists(stamp):
            os.remove(stamp)
        launched_at = time.time()
        wall, _, peak = timed([self.program("launcher")], dict(self.env, **{STAMP_VARIABLE: stamp}))
        return read_stamp(stamp) - launched_at, wall, peak

    def remove(self):
        remove_tree(self.root)


def column(runs, index):
    return [run[index] for run in runs]


def summary(values):
    return statistics.median(values), min(values), max(values)


def alternate(pairs, first, second):
    """Runs the two alternately, swapping which goes first, and returns both lists."""
    times = ([], [])
    for index in range(pairs):
        order = (0, 1) if index % 2 == 0 else (1, 0)
        for which in order:
            times[which].append((first, second)[which]())
    return times


def write_tsv(paths, name, header, rows):
    with open(os.path.join(paths.results, name), "w") as out:
        out.write("\t".join(header) + "\n")
        for row in rows:
            out.write("\t".join(str(value) for value in row) + "\n")


UPGRADE_HEADER = ("format", "unpacked", "package", "launcher_med", "launcher_min", "launcher_max",
                  "bsdtar_med", "bsdtar_min", "bsdtar_max", "ratio_med", "ratio_min", "ratio_max",
                  "launcher_cpu_med", "bsdtar_cpu_med")


def upgrade_row(paths, fmt, old_tree):
    """Times the launcher's upgrade over old_tree against bsdtar unpacking
    the same package."""
    build = bundle_build(paths)
    package = package_for(paths, CLIENT_SHAPE, fmt)
    box = Sandbox(paths, "upgrade", package)

    def launcher_run():
        box.install(OLD_BUILD, old_tree)
        measured = box.run_launcher()
        box.check_upgraded(build)
        return measured

    launcher, bsdtar = alternate(UPGRADE_PAIRS, launcher_run, box.run_bsdtar)
    wall = ([run[0] for run in launcher], [run[0] for run in bsdtar])
    cpu = ([run[1] for run in launcher], [run[1] for run in bsdtar])
    ratios = [a / b for a, b in zip(*wall)]
    box.remove()
    row = ((fmt, unpacked_bytes(tree_for(paths, CLIENT_SHAPE)), os.path.getsize(package))
           + summary(wall[0]) + summary(wall[1]) + summary(ratios)
           + (statistics.median(cpu[0]), statistics.median(cpu[1])))
    print("upgrade", row, flush=True)
    return row


def bench_upgrade(paths, formats=FORMATS):
    """Measures the given formats; rows of other formats already measured
    stay in the table."""
    old_tree = tree_for(paths, OLD_CLIENT_SHAPE)
    kept = {row["format"]: row for row in read_tsv(paths, "upgrade.tsv")}
    measured = {fmt: upgrade_row(paths, fmt, old_tree) for fmt in formats}
    rows = [measured[fmt] if fmt in measured else [kept[fmt][key] for key in UPGRADE_HEADER]
            for fmt in FORMATS if fmt in measured or fmt in kept]
    write_tsv(paths, "upgrade.tsv", UPGRADE_HEADER, rows)
    plot_upgrade(paths)


REPLACE_HEADER = ("entries", "unpacked", "package", "fresh_start_med", "fresh_start_min",
                  "fresh_start_max", "start_med", "start_min", "start_max", "ratio_med", "ratio_min",
                  "ratio_max", "exit_med", "exit_min", "exit_max", "fresh_peak_kib_med",
                  "peak_kib_med")


def replace_row(paths, shape):
    """The launcher over an older installation as large as the package,
    against a fresh install of the same package: the times until the new
    client starts, their per-pair ratio, the upgrade's time until the
    launcher ends and both peaks."""
    build = bundle_build(paths)
    package = package_for(paths, shape, CHOSEN_FORMAT)
    box = Sandbox(paths, "replace", package)

    def measured(prepare):
        def run():
            prepare()
            settle()
            result = box.run_stamped()
            box.check_upgraded(build)
            return result
        return run

    def older_installation():
        # Every run leaves the package installed; it stands for the older build.
        if not os.path.isdir(box.installed):
            box.install(build)
        set_build(box.installed, OLD_BUILD)

    def empty_home():
        remove_tree(box.home)

    upgrade, fresh = alternate(REPLACE_PAIRS, measured(older_installation), measured(empty_home))
    box.remove()
    ratios = [a / b for a, b in zip(column(upgrade, 0), column(fresh, 0))]
    row = ((shape[1], unpacked_bytes(tree_for(paths, shape)), os.path.getsize(package))
           + summary(column(fresh, 0)) + summary(column(upgrade, 0)) + summary(ratios)
           + summary(column(upgrade, 1))
           + (statistics.median(column(fresh, 2)), statistics.median(column(upgrade, 2))))
    print("replace", row, flush=True)
    return row


def bench_replace(paths):
    rows = []
    for shape in REPLACE_SHAPES:
        package_for(paths, shape, CHOSEN_FORMAT)  # made before the file system is
        with FreshFileSystem(paths):
            rows.append(replace_row(paths, shape))
    write_tsv(paths, "replace.tsv", REPLACE_HEADER, rows)
    plot_replace(paths)


def bench_remove(paths):
    """The file layer's recursive delete against rm -rf, each on a fresh copy
    of the same tree."""
    target = os.path.join(paths.work, "run", "remove")
    helper = os.path.join(paths.helpers, "remove-tree")
    rows = []
    for shape in REPLACE_SHAPES:
        def measured(program):
            def run():
                remove_tree(target)
                run_checked(["cp", "-a", tree_for(paths, shape), target])
                settle()
                return timed(program + [target])
            return run

        with FreshFileSystem(paths):
            layer, plain = alternate(REMOVE_PAIRS, measured([helper]), measured(["rm", "-rf"]))
        ratios = [a / b for a, b in zip(column(layer, 0), column(plain, 0))]
        rows.append((shape[1],) + summary(column(layer, 0)) + summary(column(plain, 0)) + summary(ratios)
                    + (statistics.median(column(layer, 1)), statistics.median(column(plain, 1))))
        print("remove", rows[-1], flush=True)
    write_tsv(paths, "remove.tsv",
              ("entries", "layer_med", "layer_min", "layer_max", "rm_med", "rm_min", "rm_max",
               "ratio_med", "ratio_min", "ratio_max", "layer_cpu_med", "rm_cpu_med"), rows)


def bench_launch(paths):
    box = Sandbox(paths, "launch", package_for(paths, CLIENT_SHAPE, CHOSEN_FORMAT))
    box.install(bundle_build(paths))
    launcher, bare = alternate(LAUNCH_PAIRS, box.run_launcher,
                               lambda: timed([box.program("bare-dialog")], box.env))
    if box.log_errors():
        raise RuntimeError("no-upgrade run logged errors: %s" % box.log_errors())
    wall = ([run[0] for run in launcher], [run[0] for run in bare])
    ratios = [a / b for a, b in zip(*wall)]
    rows = [summary(wall[0]) + summary(wall[1]) + summary(ratios)
            + (statistics.median(run[1] for run in launcher), statistics.median(run[1] for run in bare))]
    box.remove()
    print("launch", rows[0], flush=True)
    write_tsv(paths, "launch.tsv",
              ("launcher_med", "launcher_min", "launcher_max", "bare_med", "bare_min", "bare_max",
               "ratio_med", "ratio_min", "ratio_max", "launcher_cpu_med", "bare_cpu_med"), rows)


def bench_memory(paths):
    build = bundle_build(paths)
    rows = []
    for shape in MEMORY_SHAPES:
        package = package_for(paths, shape, CHOSEN_FORMAT)
        box = Sandbox(paths, "memory", package)
        peaks = []
        for _ in range(MEMORY_RUNS):
            box.install(OLD_BUILD, tree_for(paths, OLD_CLIENT_SHAPE))
            peaks.append(box.run_launcher()[2])
            box.check_upgraded(build)
        rows.append(shape + (os.path.getsize(package),) + summary(peaks))
        box.remove()
        # The large trees cost gigabytes; only the client-shaped one is kept.
        shutil.rmtree(os.path.dirname(tree_for(paths, shape)))
        os.remove(package)
        print("memory", rows[-1], flush=True)
    write_tsv(paths, "memory.tsv",
              ("unpacked_mb", "entries", "package", "peak_kib_med", "peak_kib_min", "peak_kib_max"),
              rows)


def bench_gui(paths):
    build = bundle_build(paths)
    box = Sandbox(paths, "gui", package_for(paths, CLIENT_SHAPE, CHOSEN_FORMAT))
    rows = []
    for _ in range(GUI_RUNS):
        box.install(OLD_BUILD, tree_for(paths, OLD_CLIENT_SHAPE))
        # Without a log file the harness logs to standard error.
        run = subprocess.run([box.program("gui-gap")], env=box.env, check=True,
                             capture_output=True, text=True)
        box.check_upgraded(build)
        if "[ERROR]" in run.stderr:
            raise RuntimeError("gui-gap run failed: " + run.stderr)
        output = run.stdout
        fields = dict(re.findall(r"(\w+) ([\d.]+)", output.splitlines()[-1]))
        rows.append((fields["ticks"], fields["p50_ms"], fields["p99_ms"], fields["max_ms"]))
        print("gui", rows[-1], flush=True)
    box.remove()
    write_tsv(paths, "gui.tsv", ("ticks", "p50_ms", "p99_ms", "max_ms"), rows)


def plot_bars(paths, name, title, columns):
    """<name>.png: clustered bars of the columns of <name>.tsv."""
    script = """
set terminal pngcairo size 800,480
set output '{out}'
set title '{title}'
set ylabel 'seconds'
set yrange [0:*]
set style data histograms
set style histogram clustered gap 1
set style fill solid 0.8 border -1
set key outside bottom center horizontal
plot {columns}
""".format(out=os.path.join(paths.results, name + ".png"), title=title,
           columns=columns.format(data=os.path.join(paths.results, name + ".tsv")))
    run_checked(["gnuplot"], input=script, text=True)


def plot_upgrade(paths):
    plot_bars(paths, "upgrade",
              "Upgrade of a 10,000-entry, 250 MB client (median of %d runs)" % UPGRADE_PAIRS,
              "'{data}' skip 1 using 4:xtic(1) title 'launcher (whole run)', "
              "'' skip 1 using 7 title 'bsdtar -xf'")


def plot_replace(paths):
    plot_bars(paths, "replace",
              "Replacing an installation as large as the package (median of %d pairs)" % REPLACE_PAIRS,
              "'{data}' skip 1 using 4:xtic(sprintf('%d entries', $1)) title 'fresh install: client starts', "
              "'' skip 1 using 7 title 'upgrade: client starts', "
              "'' skip 1 using 13 title 'upgrade: launcher ends'")


def read_tsv(paths, name):
    path = os.path.join(paths.results, name)
    if not os.path.exists(path):
        return []
    with open(path) as lines:
        header = lines.readline().rstrip("\n").split("\t")
        return [dict(zip(header, line.rstrip("\n").split("\t"))) for line in lines]


def spread(row, key, scale=1.0, digits=2):
    """median (min-max) of one measured quantity."""
    values = [float(row[key + suffix]) * scale for suffix in ("_med", "_min", "_max")]
    return "%.*f (%.*f-%.*f)" % (digits, values[0], digits, values[1], digits, values[2])


def thousands(count):
    return "{:,}".format(int(count))


def write_markdown(paths):
    """Tables of every result present, for docs/performance.md."""
    lines = []
    upgrade = read_tsv(paths, "upgrade.tsv")
    if upgrade:
        lines += ["| package | unpacked MB | package MB | launcher s | bsdtar s | ratio | CPU s launcher / bsdtar |",
                  "|---|---|---|---|---|---|---|"]
        for row in upgrade:
            lines.append("| %s | %.0f | %.0f | %s | %s | %s | %.2f / %.2f |" % (
                row["format"], int(row["unpacked"]) / 1e6, int(row["package"]) / 1e6,
                spread(row, "launcher"), spread(row, "bsdtar"), spread(row, "ratio"),
                float(row["launcher_cpu_med"]), float(row["bsdtar_cpu_med"])))
        lines.append("")
    replace = read_tsv(paths, "replace.tsv")
    if replace:
        lines += ["| entries | unpacked MB | package MB | fresh install: client starts s "
                  "| upgrade: client starts s | ratio | upgrade: launcher ends s "
                  "| peak RSS MiB fresh / upgrade |", "|---|---|---|---|---|---|---|---|"]
        for row in replace:
            lines.append("| %s | %.0f | %.0f | %s | %s | %s | %s | %.1f / %.1f |" % (
                thousands(row["entries"]), int(row["unpacked"]) / 1e6, int(row["package"]) / 1e6, spread(row, "fresh_start"),
                spread(row, "start"), spread(row, "ratio"), spread(row, "exit"),
                float(row["fresh_peak_kib_med"]) / 1024, float(row["peak_kib_med"]) / 1024))
        lines.append("")
    remove = read_tsv(paths, "remove.tsv")
    if remove:
        lines += ["| entries | FSRemove s | rm -rf s | ratio | CPU s FSRemove / rm |", "|---|---|---|---|---|"]
        for row in remove:
            lines.append("| %s | %s | %s | %s | %.2f / %.2f |" % (
                thousands(row["entries"]), spread(row, "layer"), spread(row, "rm"), spread(row, "ratio"),
                float(row["layer_cpu_med"]), float(row["rm_cpu_med"])))
        lines.append("")
    for row in read_tsv(paths, "launch.tsv"):
        lines += ["| launcher ms | bare program ms | ratio | CPU ms launcher / bare |", "|---|---|---|---|",
                  "| %s | %s | %s | %.0f / %.0f |" % (
                      spread(row, "launcher", 1000, 0), spread(row, "bare", 1000, 0),
                      spread(row, "ratio"), float(row["launcher_cpu_med"]) * 1000,
                      float(row["bare_cpu_med"]) * 1000), ""]
    memory = read_tsv(paths, "memory.tsv")
    if memory:
        lines += ["| unpacked MB | entries | package MB | peak RSS MiB |", "|---|---|---|---|"]
        for row in memory:
            lines.append("| %s | %s | %.0f | %s |" % (row["unpacked_mb"], row["entries"],
                                                     int(row["package"]) / 1e6,
                                                     spread(row, "peak_kib", 1 / 1024, 1)))
        lines.append("")
    gui = read_tsv(paths, "gui.tsv")
    if gui:
        lines += ["| run | ticks | median gap ms | p99 gap ms | longest gap ms |", "|---|---|---|---|---|"]
        for index, row in enumerate(gui, 1):
            lines.append("| %d | %s | %s | %s | %s |" % (index, row["ticks"], row["p50_ms"],
                                                       row["p99_ms"], row["max_ms"]))
        lines.append("")
    with open(os.path.join(paths.results, "results.md"), "w") as out:
        out.write("\n".join(lines))


BENCHMARKS = {"upgrade": bench_upgrade, "replace": bench_replace, "remove": bench_remove,
              "launch": bench_launch, "memory": bench_memory, "gui": bench_gui}


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    paths = Paths(os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2]))
    names = sys.argv[3:] or ["all"]
    if names == ["report"]:
        write_markdown(paths)
        return
    if "all" in names:
        names = list(BENCHMARKS)
    for name in names:
        if name.startswith("upgrade:"):
            bench_upgrade(paths, name.split(":", 1)[1].split(","))
        elif name in BENCHMARKS:
            BENCHMARKS[name](paths)
        else:
            sys.exit("bench: unknown benchmark %s" % name)
    write_markdown(paths)


if __name__ == "__main__":
    main()
