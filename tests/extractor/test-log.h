#ifndef TEST_LOG_H
#define TEST_LOG_H

#include <QString>

#include <string>

// Sends every level of the service and extractor components to a log file
// in folder, so that tests can read what a step logged.
bool StartTestLog(const QString& folder);

// What was logged since the capture was made.
class LogCapture {
public:
    LogCapture();
    std::string Text() const;

private:
    qint64 start;
};

#endif  // TEST_LOG_H
