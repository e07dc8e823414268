#ifndef LOG_H
#define LOG_H

#include <pthread.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>

#include "ustring.h"

// The process-wide logger. Callers pass a printf-style format that starts
// with the level's tag and the source position, for example
//   Logger::LogMsg(Logger::LEVEL_ERROR, "extractor_debug",
//                  "[ERROR] extractor(%d): Invalid Argument\n", __LINE__);
// The logger adds only a timestamp.
class Logger {
public:
    enum Type : int32_t { TYPE_SYSLOG = 1, TYPE_STDOUT = 2, TYPE_STDERR = 3, TYPE_FILE = 4 };
    enum Level : int32_t {
        LEVEL_ERROR = 3,
        LEVEL_WARNING = 4,
        LEVEL_NOTE = 5,
        LEVEL_INFO = 6,
        LEVEL_DEBUG = 7,
    };

    static int Initialize(Type type, const ustring& path, const ustring& level_file, int rotate_cnt);
    static void Destroy();
    static void LogMsg(Level level, const ustring& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg2(Level level, const ustring& component, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));
    static int Rotate();

private:
    static void load_levels(const ustring& level_file);
    static int threshold_of(const ustring& component);
    static void use_stream(FILE* stream);
    static int open_file(const ustring& path, int rotation_slots);
    static int64_t write_message(const char* format, va_list args);
    static int64_t write_stamped(const char* format, va_list args);
    static void account_written(int64_t written);

    static Type log_type;
    static int32_t log_size;
    static int32_t rotate_cnt;
    static pthread_mutex_t log_lock;
    static std::map<ustring, int32_t> log_level;
    static FILE* log_fp;
    static ustring log_path;
};

void LogMSG_c(int level, char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));

#endif  // LOG_H
