// ustring on arbitrary bytes: the UTF-16 form converts back to the same
// UTF-8, normalisation is stable, and the searches agree with std::string.
// Input: one byte of pattern length and one of start position, the pattern,
// then the text.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz-check.h"
#include "ustring.h"

namespace {

const size_t kHeaderBytes = 2;
const size_t kMaxPattern = 16;

// ustring reads C strings, so both sides stop at the first NUL byte.
std::string UpToNul(const uint8_t* data, size_t size)
{
    const auto* begin = reinterpret_cast<const char*>(data);
    return std::string(begin, std::find(begin, begin + size, '\0'));
}

void CheckRoundTrip(const ustring& text)
{
    const unsigned short* units = text.c_str_utf16();
    if (text.empty() || units[0] == 0)
        return;  // empty, or not convertible: a warning, no UTF-16 form
    FUZZ_CHECK(ustring(units) == text);
}

void CheckNormalisation(const ustring& text)
{
    const ustring composed = text.normalize(ustring::NFC);
    if (composed.empty())
        return;
    FUZZ_CHECK(composed.normalize(ustring::NFC) == composed);
    FUZZ_CHECK(composed.normalize(ustring::NFD).normalize(ustring::NFC) == composed);
}

// Empty patterns and sets have answers of their own; only the rest has a
// std::string counterpart.
void CheckSearches(const ustring& text, const std::string& plain, const std::string& pattern, unsigned long pos)
{
    if (pattern.empty())
        return;
    const ustring upattern(pattern);
    FUZZ_CHECK(text.find(upattern, pos) == plain.find(pattern, pos));
    FUZZ_CHECK(text.rfind(upattern, pos) == plain.rfind(pattern, pos));
    FUZZ_CHECK(text.find_first_of(upattern, pos) == plain.find_first_of(pattern, pos));
    FUZZ_CHECK(text.find_first_not_of(upattern, pos) == plain.find_first_not_of(pattern, pos));
    FUZZ_CHECK(text.find_last_of(upattern, pos) == plain.find_last_of(pattern, pos));
    FUZZ_CHECK(text.find_last_not_of(upattern, pos) == plain.find_last_not_of(pattern, pos));
    FUZZ_CHECK(text.find(pattern[0], pos) == plain.find(pattern[0], pos));
}

void CheckEditing(const ustring& text, const std::string& plain, const std::string& set, unsigned long pos)
{
    const unsigned long start = std::min<unsigned long>(pos, plain.size());
    FUZZ_CHECK(text.substr(start, pos).c_str_utf8() == plain.substr(start, pos));
    ustring trimmed(text);
    trimmed.trim(set.c_str());
    FUZZ_CHECK(trimmed.size() <= text.size());
    ustring doubled(text);
    doubled += doubled;
    FUZZ_CHECK(doubled.c_str_utf8() == plain + plain);
    ustring::compare(text, ustring(set), true);
}

// The same bytes read as UTF-16 units, lone surrogates included.
void CheckUtf16Input(const uint8_t* data, size_t size)
{
    std::vector<unsigned short> units(size / 2 + 1, 0);
    for (size_t i = 0; i + 1 < size; i += 2)
        units[i / 2] = static_cast<unsigned short>(data[i] | data[i + 1] << 8);
    units.back() = 0;
    const ustring text(units.data());
    FUZZ_CHECK(text.c_str_utf8()[text.size()] == '\0');
    ustring::is_valid(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < kHeaderBytes)
        return 0;
    const size_t pattern_size = std::min<size_t>(data[0] % kMaxPattern, size - kHeaderBytes);
    const unsigned long pos = data[1];
    const std::string pattern = UpToNul(data + kHeaderBytes, pattern_size);
    const uint8_t* rest = data + kHeaderBytes + pattern_size;
    const size_t rest_size = size - kHeaderBytes - pattern_size;
    const std::string plain = UpToNul(rest, rest_size);

    ustring text;
    text.assign(reinterpret_cast<const char*>(rest), rest_size);
    FUZZ_CHECK(text.c_str_utf8() == plain);
    ustring::is_valid(text);
    CheckRoundTrip(text);
    CheckNormalisation(text);
    CheckSearches(text, plain, pattern, pos);
    CheckEditing(text, plain, pattern, pos);
    CheckUtf16Input(rest, rest_size);
    return 0;
}
