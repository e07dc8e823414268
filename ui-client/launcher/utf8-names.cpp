#include "utf8-names.h"

namespace {

// glibc always has C.UTF-8; macOS calls its character type UTF-8.
const char* const kUtf8Locales[] = {"C.UTF-8", "UTF-8"};

}  // namespace

Utf8Names::Utf8Names()
{
    for (const char* name : kUtf8Locales) {
        utf8 = newlocale(LC_CTYPE_MASK, name, nullptr);
        if (utf8 != nullptr) {
            previous = uselocale(utf8);
            return;
        }
    }
}

Utf8Names::~Utf8Names()
{
    if (utf8 == nullptr)
        return;
    uselocale(previous);
    freelocale(utf8);
}
