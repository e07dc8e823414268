#ifndef DROVIA_USTRING_USTRING_H
#define DROVIA_USTRING_USTRING_H

#include <iosfwd>
#include <string>

// The string type of every path, key, value and log argument outside the UI
// toolkit. UTF-8 is the value; a UTF-16 form is derived on demand and cached.
//
// Buffers grow to exactly the size last needed and shrink when less than
// about half would be used (see realloc_data). Callers rely on that memory
// profile, so the rule is deliberately not geometric.
class ustring {
public:
    static constexpr unsigned long npos = ~0UL;

    enum normalization_form { NFC = 0, NFD = 1 };

    ustring();
    ustring(const ustring& other);
    ustring(const char* s);
    ustring(const unsigned short* s);
    ustring(const std::string& s);
    ustring(char c);
    ~ustring();

    // Appending; each assign() empties both forms, then appends.
    ustring& append(const char* s);
    ustring& append(const char* s, unsigned long n);
    ustring& append(const unsigned short* s);
    ustring& append(const unsigned short* s, unsigned long n);
    ustring& append(char c, unsigned long n);
    ustring& append(unsigned short c, unsigned long n);
    ustring& append(const ustring& s, unsigned long pos = 0, unsigned long n = npos);
    ustring& append(const std::string& s, unsigned long pos = 0, unsigned long n = npos);

    ustring& assign(const char* s);
    ustring& assign(const char* s, unsigned long n);
    ustring& assign(const unsigned short* s);
    ustring& assign(const unsigned short* s, unsigned long n);
    ustring& assign(char c, unsigned long n);
    ustring& assign(unsigned short c, unsigned long n);
    ustring& assign(const ustring& s, unsigned long pos = 0, unsigned long n = npos);
    ustring& assign(const std::string& s, unsigned long pos = 0, unsigned long n = npos);

    ustring& operator=(const ustring& s);
    ustring& operator=(const std::string& s);
    ustring& operator=(const char* s);
    ustring& operator=(const unsigned short* s);
    ustring& operator=(char c);
    ustring& operator=(unsigned short c);

    ustring& operator+=(const ustring& s);
    ustring& operator+=(const std::string& s);
    ustring& operator+=(const char* s);
    ustring& operator+=(const unsigned short* s);
    ustring& operator+=(char c);
    ustring& operator+=(unsigned short c);

    // Access.
    const char* c_str() const;
    const char* c_str_utf8() const;
    const unsigned short* c_str_utf16() const;
    unsigned long length() const;
    unsigned long size() const;
    bool empty() const;
    char& operator[](unsigned long i);
    const char& operator[](unsigned long i) const;
    ustring substr(unsigned long pos = 0, unsigned long n = npos) const;
    void swap(ustring& other);
    // Edits UTF-8 bytes in place; a derived UTF-16 form stays as it was
    // until clear_wdata().
    void replace(char from, char to);

    // Searching: byte positions in the UTF-8 form; npos when nothing is found.
    unsigned long find(const std::string& pattern, unsigned long pos = 0) const;
    unsigned long find(const char* pattern, unsigned long pos = 0) const;
    unsigned long find(const ustring& pattern, unsigned long pos = 0) const;
    unsigned long find(char c, unsigned long pos = 0) const;
    unsigned long rfind(const std::string& pattern, unsigned long pos = npos) const;
    unsigned long rfind(const char* pattern, unsigned long pos = npos) const;
    unsigned long rfind(const ustring& pattern, unsigned long pos = npos) const;
    unsigned long rfind(char c, unsigned long pos = npos) const;
    unsigned long find_first_of(const std::string& set, unsigned long pos = 0) const;
    unsigned long find_first_of(const char* set, unsigned long pos = 0) const;
    unsigned long find_first_of(const ustring& set, unsigned long pos = 0) const;
    unsigned long find_first_of(char c, unsigned long pos = 0) const;
    unsigned long find_first_not_of(const std::string& set, unsigned long pos = 0) const;
    unsigned long find_first_not_of(const char* set, unsigned long pos = 0) const;
    unsigned long find_first_not_of(const ustring& set, unsigned long pos = 0) const;
    unsigned long find_first_not_of(char c, unsigned long pos = 0) const;
    unsigned long find_last_of(const std::string& set, unsigned long pos = npos) const;
    unsigned long find_last_of(const char* set, unsigned long pos = npos) const;
    unsigned long find_last_of(const ustring& set, unsigned long pos = npos) const;
    unsigned long find_last_of(char c, unsigned long pos = npos) const;
    unsigned long find_last_not_of(const std::string& set, unsigned long pos = npos) const;
    unsigned long find_last_not_of(const char* set, unsigned long pos = npos) const;
    unsigned long find_last_not_of(const ustring& set, unsigned long pos = npos) const;
    unsigned long find_last_not_of(char c, unsigned long pos = npos) const;

    // Trimming by a set of single bytes.
    ustring& ltrim(const ustring& set);
    ustring& ltrim(const char* set);
    ustring& rtrim(const ustring& set);
    ustring& rtrim(const char* set);
    ustring& trim(const ustring& set);
    ustring& trim(const char* set);

    // Comparison of UTF-8 bytes as unsigned values; ignore_case folds ASCII only.
    int compare(const ustring& other) const;
    int compare(const ustring& other, unsigned long n) const;
    static int compare(const ustring& a, const ustring& b, bool ignore_case);

    static bool is_valid(const ustring& s);
    static ustring normalize(const ustring& src, normalization_form form);
    ustring normalize(normalization_form form) const;

    // Storage management; public because the growth rule is part of the contract.
    void init();
    void realloc_data(unsigned long n);
    void realloc_wdata(unsigned long n) const;
    void clear();
    void clear_data();
    void clear_wdata() const;
    int convert_from_data() const;
    int convert_from_wdata();

private:
    ustring& append_utf8(const char* bytes, unsigned long count);
    ustring& append_utf16(const unsigned short* units, unsigned long count);
    void make_wdata_current() const;
    void keep_bytes(unsigned long offset, unsigned long count);

    char* data;
    unsigned long data_len;
    unsigned long data_capacity;
    mutable unsigned short* wdata;
    mutable unsigned long wdata_len;
    mutable unsigned long wdata_capacity;

    friend class UstringInspector;  // lets tests read the capacities
};

ustring operator+(const ustring& a, const ustring& b);
ustring operator+(const ustring& a, const char* b);
ustring operator+(const ustring& a, char b);
ustring operator+(const ustring& a, const unsigned short* b);
ustring operator+(const ustring& a, unsigned short b);

bool operator==(const ustring& a, const ustring& b);
bool operator!=(const ustring& a, const ustring& b);
bool operator<(const ustring& a, const ustring& b);
bool operator>(const ustring& a, const ustring& b);

void swap(ustring& a, ustring& b);

std::ostream& operator<<(std::ostream& os, const ustring& s);
std::istream& operator>>(std::istream& is, ustring& s);

#endif  // DROVIA_USTRING_USTRING_H
