#ifndef QT_PRINTERS_H
#define QT_PRINTERS_H

#include <QByteArray>
#include <QString>

#include <ostream>

// Lets GoogleTest print toolkit strings as text rather than as raw bytes.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}

#endif  // QT_PRINTERS_H
