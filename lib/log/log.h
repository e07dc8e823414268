#ifndef LOG_H
#define LOG_H

#include <pthread.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>

#include "ustring.h"

// The process-wide logger. Every message starts with the level's tag and the
// source position and ends with a newline, for example
//   Nov 16 20:31:15 [ERROR] extractor(22): Invalid Argument
// The logger itself adds only the timestamp; LOG_MSG below writes the rest.
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

// Logs one message in the shape above from a single level name (ERROR,
// WARNING, NOTE, INFO or DEBUG), so that the level and its tag cannot
// disagree and no newline can be forgotten. The source file defines
// LOG_COMPONENT (the threshold's component, "service_debug") and LOG_TAG (its
// name in the text, "cloud-service") before using it:
//   LOG_MSG(ERROR, "failed to create folder: '%s'", path.c_str_utf8());
#define LOG_MSG(level, format, ...)                                                                    \
    Logger::LogMsg(Logger::LEVEL_##level, LOG_COMPONENT, "[" #level "] " LOG_TAG "(%d): " format "\n", \
                   __LINE__, ##__VA_ARGS__)

// The same for the few messages whose text ends without a newline.
#define LOG_MSG_WITHOUT_NEWLINE(level, format, ...)                                                         \
    Logger::LogMsg(Logger::LEVEL_##level, LOG_COMPONENT, "[" #level "] " LOG_TAG "(%d): " format, __LINE__, \
                   ##__VA_ARGS__)

#endif  // LOG_H
