#ifndef MESSAGE_CAPTURE_H
#define MESSAGE_CAPTURE_H

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <vector>

struct CapturedMessage {
    QtMsgType type;
    QByteArray file;
    int line;
    QByteArray category;
    QString text;
};

// Collects what goes through the toolkit's message channel for as long as
// it lives, instead of printing it.
class MessageCapture {
public:
    MessageCapture()
    {
        messages().clear();
        previous_ = qInstallMessageHandler(&MessageCapture::record);
    }
    ~MessageCapture() { qInstallMessageHandler(previous_); }
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    static std::vector<CapturedMessage>& messages()
    {
        static std::vector<CapturedMessage> captured;
        return captured;
    }

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        messages().push_back({type, QByteArray(context.file), context.line,
                              QByteArray(context.category), text});
    }

    QtMessageHandler previous_ = nullptr;
};

#endif  // MESSAGE_CAPTURE_H
