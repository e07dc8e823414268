#ifndef QT_USTRING_H
#define QT_USTRING_H

#include <QString>

#include "ustring.h"

// The common library knows nothing of the toolkit; paths cross between the
// two through UTF-8.
inline QString ToQString(const ustring& text)
{
    return QString::fromUtf8(text.c_str_utf8(), static_cast<int>(text.size()));
}

inline ustring ToUstring(const QString& text)
{
    return ustring(text.toUtf8().constData());
}

#endif  // QT_USTRING_H
