#include "log.h"

#include <fcntl.h>
#include <syslog.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>

#include "cancel-safe-lock.h"
#include "config.h"

namespace {

// Components without an entry of their own let errors and warnings through.
const int32_t kDefaultThreshold = Logger::LEVEL_WARNING;
const char kDefaultComponent[] = "default_component";
// The file is rotated once it holds more than this many bytes.
const int64_t kMaxLogSize = 1024 * 1024;
const std::size_t kTimestampSize = 512;
const char kTimestampFormat[] = "%b %d %H:%M:%S ";
const std::size_t kRotatedNameSize = 1024;

// The console streams belong to the process; only a log file is ours to close.
// A failing close has nowhere to be reported.
void CloseIfOwned(FILE* stream)
{
    if (stream != nullptr && stream != stdout && stream != stderr)
        (void)fclose(stream);
}

// Opened close-on-exec: a program the launcher starts must not keep the log
// open, nor anything that waits for the launcher's descriptors to close.
FILE* OpenForAppending(const char* path)
{
    const int fd = open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (fd < 0)
        return nullptr;
    FILE* stream = fdopen(fd, "a");
    if (stream == nullptr)
        close(fd);
    return stream;
}

// An overlong name is truncated rather than overflowing the buffer.
void FormatRotatedName(char (&name)[kRotatedNameSize], const char* live_path, int index)
{
    (void)snprintf(name, sizeof name, "%s_%d", live_path, index);
}

void FormatTimestamp(char (&stamp)[kTimestampSize])
{
    const time_t now = time(nullptr);
    struct tm local;
    if (localtime_r(&now, &local) == nullptr || strftime(stamp, sizeof stamp, kTimestampFormat, &local) == 0)
        stamp[0] = '\0';
}

}  // namespace

Logger::Type Logger::log_type = Logger::TYPE_STDOUT;
int32_t Logger::log_size = -1;
int32_t Logger::rotate_cnt = 0;
pthread_mutex_t Logger::log_lock = PTHREAD_MUTEX_INITIALIZER;
std::map<ustring, int32_t> Logger::log_level;
FILE* Logger::log_fp = stderr;
ustring Logger::log_path;

int Logger::Initialize(Type type, const ustring& path, const ustring& level_file, int rotation_slots)
{
    log_level[kDefaultComponent] = kDefaultThreshold;
    load_levels(level_file);
    log_type = type;
    switch (type) {
    case TYPE_STDERR: use_stream(stderr); return 0;
    case TYPE_STDOUT: use_stream(stdout); return 0;
    case TYPE_SYSLOG: use_stream(nullptr); return 0;
    default: return open_file(path, rotation_slots);
    }
}

void Logger::Destroy()
{
    if (log_type != TYPE_FILE)
        return;
    use_stream(stdout);
    log_type = TYPE_STDERR;
}

void Logger::LogMsg(Level level, const ustring& component, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    LogMsg2(level, component, format, args);
    va_end(args);
}

void Logger::LogMsg2(Level level, const ustring& component, const char* format, va_list args)
{
    // Read without the lock: after a failed rotation the logger stays silent
    // and should cost nothing.
    if (log_type != TYPE_SYSLOG && log_fp == nullptr)
        return;
    CancelSafeLock lock(&log_lock);
    if (!lock.locked() || level > threshold_of(component))
        return;
    account_written(write_message(format, args));
}

int Logger::Rotate()
{
    char from[kRotatedNameSize];
    char to[kRotatedNameSize];
    const char* live_path = log_path.c_str_utf8();

    // Older files move up one slot; gaps in the sequence are simply skipped.
    for (int i = rotate_cnt - 2; i >= 0; --i) {
        FormatRotatedName(from, live_path, i);
        FormatRotatedName(to, live_path, i + 1);
        (void)rename(from, to);
    }
    // The last slot has just received the oldest file, which is dropped.
    FormatRotatedName(to, live_path, rotate_cnt - 1);
    (void)remove(to);

    CloseIfOwned(log_fp);
    log_fp = nullptr;
    FormatRotatedName(to, live_path, 0);
    if (rename(live_path, to) != 0)
        return -1;
    log_fp = OpenForAppending(live_path);
    return log_fp != nullptr ? 0 : -1;
}

void Logger::load_levels(const ustring& level_file)
{
    if (level_file.empty())
        return;
    // A missing or malformed level file adds nothing; that is not an error.
    Config levels;
    (void)levels.read(level_file);
    for (const auto& entry : levels.entries)
        log_level[entry.first] = levels.get_int(entry.first);
}

int Logger::threshold_of(const ustring& component)
{
    const auto found = log_level.find(component);
    return found != log_level.end() ? found->second : kDefaultThreshold;
}

void Logger::use_stream(FILE* stream)
{
    if (stream != log_fp)
        CloseIfOwned(log_fp);
    log_fp = stream;
    log_path = "";
    log_size = -1;
}

// On failure log_fp and log_path stay as they were, so an earlier stream
// keeps receiving messages.
int Logger::open_file(const ustring& path, int rotation_slots)
{
    if (path.empty())
        return -1;
    FILE* stream = OpenForAppending(path.c_str_utf8());
    if (stream == nullptr)
        return -1;
    CloseIfOwned(log_fp);
    log_fp = stream;
    log_size = 0;
    log_path = path;
    rotate_cnt = rotation_slots;
    return 0;
}

int64_t Logger::write_message(const char* format, va_list args)
{
    switch (log_type) {
    case TYPE_SYSLOG: vsyslog(LOG_ERR, format, args); return 0;
    case TYPE_STDOUT:
    case TYPE_STDERR:
    case TYPE_FILE: return log_fp != nullptr ? write_stamped(format, args) : 0;
    default: vfprintf(stderr, format, args); return 0;
    }
}

// Returns the bytes written, or -1 when either write failed so that the
// message is left out of the size count.
int64_t Logger::write_stamped(const char* format, va_list args)
{
    char stamp[kTimestampSize];
    FormatTimestamp(stamp);
    const int stamp_written = fprintf(log_fp, "%s", stamp);
    const int message_written = vfprintf(log_fp, format, args);
    // A failed flush shows up as a failed write of a later message.
    (void)fflush(log_fp);
    if (stamp_written < 0 || message_written < 0)
        return -1;
    return static_cast<int64_t>(stamp_written) + message_written;
}

void Logger::account_written(int64_t written)
{
    if (log_type != TYPE_FILE || log_size < 0 || written < 0)
        return;
    const int64_t total = log_size + written;
    if (total <= kMaxLogSize) {
        log_size = static_cast<int32_t>(total);
        return;
    }
    // A failed rotation leaves no stream; the logger then stays silent until
    // it is initialised again.
    (void)Rotate();
    log_size = 0;
}

void LogMSG_c(int level, char* component, const char* format, va_list args)
{
    Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component != nullptr ? component : ""), format,
                    args);
}
