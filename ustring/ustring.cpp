#include "ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <limits>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace {

const unsigned long kInitialCapacity = 4;

// Line numbers the conversion warnings have always carried; people grep
// collected stderr for them.
const int kFromUtf8WarningLine = 921;
const int kToUtf8WarningLine = 888;
const int kGetNormalizerWarningLine = 1014;
const int kNormalizeWarningLine = 1026;

const unsigned char kFirstNonAsciiByte = 0x80;

const char kSubstrError[] = "substr";
const char kStdSubstrError[] = "basic_string::substr";

static_assert(ustring::npos == std::string_view::npos,
              "search results of std::string_view are passed on unchanged");

// Buffers are sized exactly to what is needed, never geometrically: most
// strings are built once and then only read, so slack would be pure waste.
// A buffer less than about half used is shrunk for the same reason.
template <typename Unit>
void GrowToFit(Unit*& buffer, unsigned long& capacity, unsigned long needed)
{
    needed = std::max(needed, 1UL);  // the terminator always needs room
    if (capacity >= needed && capacity / 2 <= needed)
        return;
    if (needed > std::numeric_limits<std::size_t>::max() / sizeof(Unit))
        throw std::bad_alloc();
    void* resized = std::realloc(buffer, needed * sizeof(Unit));
    if (resized == nullptr)
        throw std::bad_alloc();
    buffer = static_cast<Unit*>(resized);
    capacity = needed;
}

unsigned long SizeWithTerminator(unsigned long length, unsigned long extra)
{
    if (extra >= std::numeric_limits<unsigned long>::max() - length)
        throw std::bad_alloc();
    return length + extra + 1;
}

template <typename Unit>
bool PointsInto(const Unit* p, const Unit* buffer, unsigned long capacity)
{
    std::less<const Unit*> before;
    return !before(p, buffer) && before(p, buffer + capacity);
}

// Self-appends read from the buffer being grown, so the source is looked up
// again after a realloc may have moved it.
template <typename Unit>
void AppendUnits(Unit*& buffer, unsigned long& length, unsigned long& capacity, const Unit* source,
                 unsigned long count)
{
    const bool own = PointsInto(source, buffer, capacity);
    const std::size_t offset = own ? static_cast<std::size_t>(source - buffer) : 0;
    GrowToFit(buffer, capacity, SizeWithTerminator(length, count));
    if (own)
        source = buffer + offset;
    std::memmove(buffer + length, source, count * sizeof(Unit));
    length += count;
    buffer[length] = 0;
}

template <typename Unit>
void FillUnits(Unit*& buffer, unsigned long& length, unsigned long& capacity, Unit unit, unsigned long count)
{
    GrowToFit(buffer, capacity, SizeWithTerminator(length, count));
    std::fill_n(buffer + length, count, unit);
    length += count;
    buffer[length] = 0;
}

unsigned long UnitsBeforeTerminator(const unsigned short* units, unsigned long limit)
{
    unsigned long count = 0;
    while (count < limit && units[count] != 0)
        ++count;
    return count;
}

// The part [pos, pos + n) of a text, clipped to its end and to its first 0 byte.
std::string_view CheckedSubstring(const char* bytes, unsigned long length, unsigned long pos, unsigned long n,
                                  const char* error)
{
    if (pos > length)
        throw std::out_of_range(error);
    const char* start = bytes + pos;
    return std::string_view(start, strnlen(start, std::min(n, length - pos)));
}

std::string_view TextOf(const ustring& s)
{
    return std::string_view(s.c_str(), s.size());
}

int32_t IcuCapacity(unsigned long capacity)
{
    return static_cast<int32_t>(std::min<unsigned long>(capacity, std::numeric_limits<int32_t>::max()));
}

unsigned long IcuLength(int32_t length)
{
    return static_cast<unsigned long>(std::max<int32_t>(length, 0));
}

// Up to the first 0 byte, where ICU's view of the text ends too.
bool IsAscii(const char* text)
{
    for (; *text != '\0'; ++text) {
        if (static_cast<unsigned char>(*text) >= kFirstNonAsciiByte)
            return false;
    }
    return true;
}

void Warn(const char* function, UErrorCode code, int line)
{
    std::cerr << "Warning: " << function << ": error code " << code << " at line " << line << std::endl;
}

using FoldTable = std::array<unsigned char, 256>;

constexpr FoldTable MakeFoldTable(bool ascii_lower)
{
    FoldTable table{};
    for (int byte = 0; byte < 256; ++byte) {
        const bool upper = byte >= 'A' && byte <= 'Z';
        table[byte] = static_cast<unsigned char>(ascii_lower && upper ? byte + ('a' - 'A') : byte);
    }
    return table;
}

// Only ASCII letters fold: paths are compared as bytes, and a locale-aware
// fold would make the order of config keys depend on the user's settings.
constexpr FoldTable kIdentity = MakeFoldTable(false);
constexpr FoldTable kAsciiLower = MakeFoldTable(true);

// The terminator takes part, so a proper prefix orders before the longer text.
int CompareBytes(const ustring& a, const ustring& b, unsigned long n, bool ignore_case)
{
    const FoldTable& fold = ignore_case ? kAsciiLower : kIdentity;
    const unsigned long limit = std::min(std::min(a.size(), b.size()) + 1, n);
    const auto* left = reinterpret_cast<const unsigned char*>(a.c_str());
    const auto* right = reinterpret_cast<const unsigned char*>(b.c_str());
    for (unsigned long i = 0; i < limit; ++i) {
        const int difference = fold[left[i]] - fold[right[i]];
        if (difference != 0)
            return difference;
    }
    return 0;
}

template <typename Right>
ustring Concatenated(const ustring& left, const Right& right)
{
    ustring result(left);
    result += right;
    return result;
}

}  // namespace

// ---- set-up and storage ----

void ustring::init()
{
    data = nullptr;
    wdata = nullptr;
    data_capacity = 0;
    wdata_capacity = 0;
    realloc_data(kInitialCapacity);
    try {
        realloc_wdata(kInitialCapacity);
    } catch (...) {
        std::free(data);
        data = nullptr;
        throw;
    }
    data_len = 0;
    wdata_len = 0;
    data[0] = 0;
    wdata[0] = 0;
}

void ustring::realloc_data(unsigned long n)
{
    GrowToFit(data, data_capacity, n);
}

void ustring::realloc_wdata(unsigned long n) const
{
    GrowToFit(wdata, wdata_capacity, n);
}

void ustring::clear()
{
    clear_data();
    clear_wdata();
}

void ustring::clear_data()
{
    data_len = 0;
    data[0] = 0;
}

void ustring::clear_wdata() const
{
    wdata_len = 0;
    wdata[0] = 0;
}

void ustring::make_wdata_current() const
{
    if (wdata_len == 0 && data_len != 0)
        convert_from_data();
}

// Keeps count bytes starting at offset as the whole value, in place.
void ustring::keep_bytes(unsigned long offset, unsigned long count)
{
    if (offset != 0)
        std::memmove(data, data + offset, count);
    data_len = count;
    data[count] = 0;
    clear_wdata();
}

int ustring::convert_from_data() const
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t units = 0;
    // Only the length is wanted here; the status of a measuring call is moot.
    u_strFromUTF8(nullptr, 0, &units, data, -1, &status);
    const unsigned long length = IcuLength(units);
    realloc_wdata(length + 1);
    status = U_ZERO_ERROR;
    u_strFromUTF8(wdata, IcuCapacity(wdata_capacity), nullptr, data, -1, &status);
    if (U_FAILURE(status)) {
        Warn("u_strFromUTF8", status, kFromUtf8WarningLine);
        clear_wdata();
        return -1;
    }
    wdata_len = length;
    wdata[length] = 0;
    return 0;
}

int ustring::convert_from_wdata()
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t bytes = 0;
    u_strToUTF8(nullptr, 0, &bytes, wdata, -1, &status);
    const unsigned long length = IcuLength(bytes);
    realloc_data(length + 1);
    status = U_ZERO_ERROR;
    u_strToUTF8(data, IcuCapacity(data_capacity), nullptr, wdata, -1, &status);
    if (U_FAILURE(status)) {
        Warn("u_strToUTF8", status, kToUtf8WarningLine);
        clear();
        return -1;
    }
    data_len = length;
    data[length] = 0;
    return 0;
}

// ---- construction ----

ustring::ustring()
{
    init();
}

// The other constructors delegate, so a throwing assignment still frees the
// buffers through the destructor.
ustring::ustring(const ustring& other) : ustring()
{
    assign(other);
}

ustring::ustring(const char* s) : ustring()
{
    assign(s);
}

ustring::ustring(const unsigned short* s) : ustring()
{
    assign(s);
}

ustring::ustring(const std::string& s) : ustring()
{
    assign(s);
}

ustring::ustring(char c) : ustring()
{
    assign(c, 1);
}

ustring::~ustring()
{
    std::free(data);
    std::free(wdata);
    data = nullptr;
    wdata = nullptr;
}

// ---- appending ----

ustring& ustring::append_utf8(const char* bytes, unsigned long count)
{
    AppendUnits(data, data_len, data_capacity, bytes, count);
    clear_wdata();
    return *this;
}

// Expects the UTF-16 form to be current.
ustring& ustring::append_utf16(const unsigned short* units, unsigned long count)
{
    AppendUnits(wdata, wdata_len, wdata_capacity, units, count);
    // A failed conversion has already warned and emptied both forms.
    (void)convert_from_wdata();
    return *this;
}

ustring& ustring::append(const char* s)
{
    return append(s, npos);
}

ustring& ustring::append(const char* s, unsigned long n)
{
    if (s == data)
        return append_utf8(data, std::min(n, data_len));
    return append_utf8(s, strnlen(s, n));
}

ustring& ustring::append(const unsigned short* s)
{
    return append(s, npos);
}

ustring& ustring::append(const unsigned short* s, unsigned long n)
{
    const bool own = (s == wdata);
    make_wdata_current();
    if (own)
        return append_utf16(wdata, std::min(n, wdata_len));
    return append_utf16(s, UnitsBeforeTerminator(s, n));
}

ustring& ustring::append(char c, unsigned long n)
{
    FillUnits(data, data_len, data_capacity, c, n);
    clear_wdata();
    return *this;
}

ustring& ustring::append(unsigned short c, unsigned long n)
{
    make_wdata_current();
    FillUnits(wdata, wdata_len, wdata_capacity, c, n);
    (void)convert_from_wdata();  // on failure it has warned and emptied both forms
    return *this;
}

ustring& ustring::append(const ustring& s, unsigned long pos, unsigned long n)
{
    const std::string_view part = CheckedSubstring(s.data, s.data_len, pos, n, kSubstrError);
    return append_utf8(part.data(), part.size());
}

ustring& ustring::append(const std::string& s, unsigned long pos, unsigned long n)
{
    const std::string_view part = CheckedSubstring(s.data(), s.size(), pos, n, kStdSubstrError);
    return append_utf8(part.data(), part.size());
}

// ---- assigning ----

ustring& ustring::assign(const char* s)
{
    return assign(s, npos);
}

ustring& ustring::assign(const char* s, unsigned long n)
{
    if (s == data) {
        if (n < data_len)
            keep_bytes(0, n);
        return *this;
    }
    clear();
    return append(s, n);
}

ustring& ustring::assign(const unsigned short* s)
{
    return assign(s, npos);
}

ustring& ustring::assign(const unsigned short* s, unsigned long n)
{
    if (s == wdata) {
        if (n < wdata_len) {
            wdata_len = n;
            wdata[n] = 0;
            (void)convert_from_wdata();  // on failure it has warned and emptied both forms
        }
        return *this;
    }
    clear();
    return append(s, n);
}

ustring& ustring::assign(char c, unsigned long n)
{
    clear();
    return append(c, n);
}

ustring& ustring::assign(unsigned short c, unsigned long n)
{
    clear();
    return append(c, n);
}

ustring& ustring::assign(const ustring& s, unsigned long pos, unsigned long n)
{
    const std::string_view part = CheckedSubstring(s.data, s.data_len, pos, n, kSubstrError);
    if (&s == this) {
        keep_bytes(static_cast<unsigned long>(part.data() - data), part.size());
        realloc_data(part.size() + 1);
        return *this;
    }
    clear();
    return append_utf8(part.data(), part.size());
}

ustring& ustring::assign(const std::string& s, unsigned long pos, unsigned long n)
{
    const std::string_view part = CheckedSubstring(s.data(), s.size(), pos, n, kStdSubstrError);
    clear();
    return append_utf8(part.data(), part.size());
}

ustring& ustring::operator=(const ustring& s)
{
    return assign(s);
}
ustring& ustring::operator=(const std::string& s)
{
    return assign(s);
}
ustring& ustring::operator=(const char* s)
{
    return assign(s);
}
ustring& ustring::operator=(const unsigned short* s)
{
    return assign(s);
}
ustring& ustring::operator=(char c)
{
    return assign(c, 1);
}
ustring& ustring::operator=(unsigned short c)
{
    return assign(c, 1);
}

ustring& ustring::operator+=(const ustring& s)
{
    return append(s);
}
ustring& ustring::operator+=(const std::string& s)
{
    return append(s);
}
ustring& ustring::operator+=(const char* s)
{
    return append(s);
}
ustring& ustring::operator+=(const unsigned short* s)
{
    return append(s);
}
ustring& ustring::operator+=(char c)
{
    return append(c, 1);
}
ustring& ustring::operator+=(unsigned short c)
{
    return append(c, 1);
}

// ---- access ----

const char* ustring::c_str() const
{
    return data;
}
const char* ustring::c_str_utf8() const
{
    return data;
}

const unsigned short* ustring::c_str_utf16() const
{
    make_wdata_current();
    return wdata;
}

unsigned long ustring::length() const
{
    return data_len;
}
unsigned long ustring::size() const
{
    return data_len;
}
bool ustring::empty() const
{
    return data_len == 0;
}
char& ustring::operator[](unsigned long i)
{
    return data[i];
}
const char& ustring::operator[](unsigned long i) const
{
    return data[i];
}

ustring ustring::substr(unsigned long pos, unsigned long n) const
{
    const std::string_view part = CheckedSubstring(data, data_len, pos, n, kSubstrError);
    ustring result;
    result.append_utf8(part.data(), part.size());
    return result;
}

void ustring::swap(ustring& other)
{
    std::swap(data, other.data);
    std::swap(data_len, other.data_len);
    std::swap(data_capacity, other.data_capacity);
    std::swap(wdata, other.wdata);
    std::swap(wdata_len, other.wdata_len);
    std::swap(wdata_capacity, other.wdata_capacity);
}

void ustring::replace(char from, char to)
{
    std::replace(data, data + data_len, from, to);
}

// ---- searching ----
// Patterns and sets are 0-terminated, so every argument kind forwards to the
// char const* form; a char 0 becomes the empty pattern.

unsigned long ustring::find(const char* pattern, unsigned long pos) const
{
    if (pos >= data_len)
        return npos;
    return TextOf(*this).find(pattern, pos);
}

unsigned long ustring::rfind(const char* pattern, unsigned long pos) const
{
    if (data_len == 0)
        return npos;
    return TextOf(*this).rfind(pattern, std::min(pos, data_len - 1));
}

unsigned long ustring::find_first_of(const char* set, unsigned long pos) const
{
    if (pos >= data_len)
        return npos;
    return TextOf(*this).find_first_of(set, pos);
}

unsigned long ustring::find_first_not_of(const char* set, unsigned long pos) const
{
    if (pos >= data_len)
        return npos;
    return TextOf(*this).find_first_not_of(set, pos);
}

unsigned long ustring::find_last_of(const char* set, unsigned long pos) const
{
    if (data_len == 0)
        return npos;
    return TextOf(*this).find_last_of(set, std::min(pos, data_len - 1));
}

unsigned long ustring::find_last_not_of(const char* set, unsigned long pos) const
{
    if (data_len == 0)
        return npos;
    return TextOf(*this).find_last_not_of(set, std::min(pos, data_len - 1));
}

unsigned long ustring::find(const std::string& pattern, unsigned long pos) const
{
    return find(pattern.c_str(), pos);
}

unsigned long ustring::find(const ustring& pattern, unsigned long pos) const
{
    return find(pattern.c_str(), pos);
}

unsigned long ustring::find(char c, unsigned long pos) const
{
    const char pattern[] = {c, '\0'};
    return find(pattern, pos);
}

unsigned long ustring::rfind(const std::string& pattern, unsigned long pos) const
{
    return rfind(pattern.c_str(), pos);
}

unsigned long ustring::rfind(const ustring& pattern, unsigned long pos) const
{
    return rfind(pattern.c_str(), pos);
}

unsigned long ustring::rfind(char c, unsigned long pos) const
{
    const char pattern[] = {c, '\0'};
    return rfind(pattern, pos);
}

unsigned long ustring::find_first_of(const std::string& set, unsigned long pos) const
{
    return find_first_of(set.c_str(), pos);
}

unsigned long ustring::find_first_of(const ustring& set, unsigned long pos) const
{
    return find_first_of(set.c_str(), pos);
}

unsigned long ustring::find_first_of(char c, unsigned long pos) const
{
    const char set[] = {c, '\0'};
    return find_first_of(set, pos);
}

unsigned long ustring::find_first_not_of(const std::string& set, unsigned long pos) const
{
    return find_first_not_of(set.c_str(), pos);
}

unsigned long ustring::find_first_not_of(const ustring& set, unsigned long pos) const
{
    return find_first_not_of(set.c_str(), pos);
}

unsigned long ustring::find_first_not_of(char c, unsigned long pos) const
{
    const char set[] = {c, '\0'};
    return find_first_not_of(set, pos);
}

unsigned long ustring::find_last_of(const std::string& set, unsigned long pos) const
{
    return find_last_of(set.c_str(), pos);
}

unsigned long ustring::find_last_of(const ustring& set, unsigned long pos) const
{
    return find_last_of(set.c_str(), pos);
}

unsigned long ustring::find_last_of(char c, unsigned long pos) const
{
    const char set[] = {c, '\0'};
    return find_last_of(set, pos);
}

unsigned long ustring::find_last_not_of(const std::string& set, unsigned long pos) const
{
    return find_last_not_of(set.c_str(), pos);
}

unsigned long ustring::find_last_not_of(const ustring& set, unsigned long pos) const
{
    return find_last_not_of(set.c_str(), pos);
}

unsigned long ustring::find_last_not_of(char c, unsigned long pos) const
{
    const char set[] = {c, '\0'};
    return find_last_not_of(set, pos);
}

// ---- trimming ----

ustring& ustring::ltrim(const char* set)
{
    const unsigned long first_kept = std::min(find_first_not_of(set), data_len);
    if (first_kept != 0)
        keep_bytes(first_kept, data_len - first_kept);
    return *this;
}

ustring& ustring::rtrim(const char* set)
{
    const unsigned long last_kept = find_last_not_of(set);
    const unsigned long kept = (last_kept == npos) ? 0 : last_kept + 1;
    if (kept < data_len)
        keep_bytes(0, kept);
    return *this;
}

ustring& ustring::trim(const char* set)
{
    return ltrim(set).rtrim(set);
}

ustring& ustring::ltrim(const ustring& set)
{
    return ltrim(set.c_str());
}
ustring& ustring::rtrim(const ustring& set)
{
    return rtrim(set.c_str());
}
ustring& ustring::trim(const ustring& set)
{
    return trim(set.c_str());
}

// ---- comparison ----

int ustring::compare(const ustring& other) const
{
    return CompareBytes(*this, other, npos, false);
}

int ustring::compare(const ustring& other, unsigned long n) const
{
    return CompareBytes(*this, other, n, false);
}

int ustring::compare(const ustring& a, const ustring& b, bool ignore_case)
{
    return CompareBytes(a, b, npos, ignore_case);
}

bool operator==(const ustring& a, const ustring& b)
{
    return a.size() == b.size() && std::memcmp(a.c_str(), b.c_str(), a.size()) == 0;
}

bool operator!=(const ustring& a, const ustring& b)
{
    return !(a == b);
}
bool operator<(const ustring& a, const ustring& b)
{
    return a.compare(b) < 0;
}
bool operator>(const ustring& a, const ustring& b)
{
    return a.compare(b) > 0;
}

// ---- validation and normalisation ----

bool ustring::is_valid(const ustring& s)
{
    if (s.empty())
        return true;
    UErrorCode status = U_ZERO_ERROR;
    int32_t units = 0;
    u_strFromUTF8(nullptr, 0, &units, s.data, -1, &status);
    return status != U_INVALID_CHAR_FOUND;
}

ustring ustring::normalize(const ustring& src, normalization_form form)
{
    static const UNormalization2Mode kModeOfForm[] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};
    ustring result;
    if (src.empty())
        return result;
    // Every form leaves ASCII as it is: paths of the everyday start never
    // need ICU's normalisation data loaded.
    if (IsAscii(src.c_str()))
        return ustring(src.c_str());

    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2* normalizer = unorm2_getInstance(nullptr, "nfc", kModeOfForm[form], &status);
    if (U_FAILURE(status) || normalizer == nullptr) {
        Warn("unorm2_getInstance", status, kGetNormalizerWarningLine);
        return result;
    }

    const unsigned long length =
        IcuLength(unorm2_normalize(normalizer, src.c_str_utf16(), -1, nullptr, 0, &status));
    result.realloc_wdata(length + 1);
    status = U_ZERO_ERROR;
    unorm2_normalize(normalizer, src.c_str_utf16(), -1, result.wdata, IcuCapacity(result.wdata_capacity),
                     &status);
    if (U_FAILURE(status)) {
        Warn("unorm2_normalize", status, kNormalizeWarningLine);
        result.clear();
        return result;
    }
    result.wdata_len = length;
    result.wdata[length] = 0;
    (void)result.convert_from_wdata();  // on failure it has warned and emptied the result
    return result;
}

ustring ustring::normalize(normalization_form form) const
{
    return normalize(*this, form);
}

// ---- free functions ----

ustring operator+(const ustring& a, const ustring& b)
{
    return Concatenated(a, b);
}
ustring operator+(const ustring& a, const char* b)
{
    return Concatenated(a, b);
}
ustring operator+(const ustring& a, char b)
{
    return Concatenated(a, b);
}
ustring operator+(const ustring& a, const unsigned short* b)
{
    return Concatenated(a, b);
}
ustring operator+(const ustring& a, unsigned short b)
{
    return Concatenated(a, b);
}

void swap(ustring& a, ustring& b)
{
    a.swap(b);
}

std::ostream& operator<<(std::ostream& os, const ustring& s)
{
    return os << s.c_str();
}

std::istream& operator>>(std::istream& is, ustring& s)
{
    std::string word;
    is >> word;
    s = word;
    return is;
}
