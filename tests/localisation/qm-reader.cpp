#include "qm-reader.h"

#include <QDataStream>

namespace {

const char kMagic[] = "\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd";
constexpr int kMagicLength = 16;

enum MessageTag : quint8 {
    EndTag = 1,
    TranslationTag = 3,
    SourceTextTag = 6,
    ContextTag = 7,
    CommentTag = 8,
};

// Tags of older formats that lrelease no longer writes count as corruption.
bool readMessageField(QDataStream& in, quint8 tag, QmMessage* message)
{
    switch (tag) {
    case TranslationTag: {
        QString translation;
        in >> translation;
        message->translations.append(translation);
        return true;
    }
    case SourceTextTag:
        in >> message->sourceText;
        return true;
    case ContextTag:
        in >> message->context;
        return true;
    case CommentTag:
        in >> message->comment;
        return true;
    default:
        return false;
    }
}

bool readMessages(const QByteArray& section, QList<QmMessage>* messages)
{
    QDataStream in(section);
    QmMessage message;
    bool open = false;
    while (!in.atEnd()) {
        quint8 tag = 0;
        in >> tag;
        if (tag == EndTag) {
            messages->append(message);
            message = QmMessage();
            open = false;
            continue;
        }
        if (!readMessageField(in, tag, &message) || in.status() != QDataStream::Ok)
            return false;
        open = true;
    }
    return !open;
}

}  // namespace

QmCatalogue readQmCatalogue(const QByteArray& bytes)
{
    QmCatalogue catalogue;
    if (!bytes.startsWith(QByteArray(kMagic, kMagicLength)))
        return catalogue;

    // A section is a tag byte followed by a length-prefixed block, which is
    // exactly how QDataStream writes a QByteArray.
    QDataStream in(bytes.mid(kMagicLength));
    while (!in.atEnd()) {
        quint8 tag = 0;
        QByteArray section;
        in >> tag >> section;
        if (in.status() != QDataStream::Ok)
            return catalogue;
        catalogue.sectionTags.append(tag);
        if (tag == QmMessagesSection && !readMessages(section, &catalogue.messages))
            return catalogue;
    }
    catalogue.valid = true;
    return catalogue;
}
