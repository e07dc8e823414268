// ustring on arbitrary bytes: UTF-16 converts back to the same UTF-8, NFC is stable, searches and
// edits agree with std::string. Input: pattern length, start position, pattern, text.
#include <algorithm>

#include "fuzz-support.h"
#include "ustring.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const size_t p_size = size < 2 ? 0 : std::min<size_t>(data[0] % 16, size - 2);
    const size_t n = size - std::min<size_t>(size, 2 + p_size);
    const unsigned long pos = size < 2 ? 0 : data[1];
    const char* bytes = reinterpret_cast<const char*>(data) + size - n;
    // ustring reads C strings, so both sides stop at the first NUL.
    const std::string p(bytes - p_size, std::find(bytes - p_size, bytes, '\0'));
    const std::string plain(bytes, std::find(bytes, bytes + n, '\0'));
    ustring text;
    ustring up(p);
    text.assign(bytes, n);
    const unsigned short* units = text.c_str_utf16();
    FUZZ_CHECK(text.c_str_utf8() == plain &&
               (text.empty() || units[0] == 0 || ustring(units) == text));  // 0: not convertible
    const ustring nfc = text.normalize(ustring::NFC);
    FUZZ_CHECK(nfc.normalize(ustring::NFC) == nfc &&
               nfc.normalize(ustring::NFD).normalize(ustring::NFC) == nfc);
    // Empty patterns and sets answer differently from std::string, by design.
    FUZZ_CHECK(p.empty() ||
               (text.find(up, pos) == plain.find(p, pos) && text.rfind(up, pos) == plain.rfind(p, pos) &&
                text.find_first_of(up, pos) == plain.find_first_of(p, pos) &&
                text.find_first_not_of(up, pos) == plain.find_first_not_of(p, pos) &&
                text.find_last_of(up, pos) == plain.find_last_of(p, pos) &&
                text.find_last_not_of(up, pos) == plain.find_last_not_of(p, pos)));
    FUZZ_CHECK(text.substr(std::min(pos, plain.size()), pos).c_str_utf8() ==
               plain.substr(std::min(pos, plain.size()), pos));
    ustring twice = text;
    twice += twice;
    FUZZ_CHECK(twice.c_str_utf8() == plain + plain);
    twice.trim(p.c_str());
    ustring::compare(text, up, true);
    return 0;
}
