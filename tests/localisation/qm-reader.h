#ifndef QM_READER_H
#define QM_READER_H

#include <QByteArray>
#include <QList>
#include <QStringList>

// Reads a compiled catalogue far enough to see what lrelease wrote into it:
// its sections in file order and every message's fields.
struct QmMessage {
    QByteArray context;
    QByteArray sourceText;
    QByteArray comment;
    QStringList translations;
};

struct QmCatalogue {
    bool valid = false;
    QList<int> sectionTags;
    QList<QmMessage> messages;
};

enum QmSectionTag {
    QmContextsSection = 0x2f,
    QmHashesSection = 0x42,
    QmMessagesSection = 0x69,
    QmNumerusRulesSection = 0x88,
    QmDependenciesSection = 0x96,
    QmLanguageSection = 0xa7,
};

QmCatalogue readQmCatalogue(const QByteArray& bytes);

#endif  // QM_READER_H
