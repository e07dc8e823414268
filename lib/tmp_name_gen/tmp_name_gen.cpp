#include "tmp_name_gen.h"

#include <sys/time.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <numeric>
#include <utility>

namespace {

const int kNameLength = 8;
const int kBitsPerChar = 6;
const unsigned kCharMask = 0x3f;

// Used only when a key text is empty, which the clock-based key never is.
void FillKeyFromClock(unsigned char* key)
{
    srand(static_cast<unsigned>(time(nullptr)));
    for (int i = 0; i < TmpNameGen::KEY_SIZE; ++i)
        key[i] = static_cast<unsigned char>(rand() & 0xff);
}

}  // namespace

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

TmpNameGen* TmpNameGen::getInstance()
{
    static TmpNameGen tmp_name;
    return &tmp_name;
}

// Should the clock be unreadable, the key stays empty and rc4_init falls
// back to its own seed.
TmpNameGen::TmpNameGen() : state(), key(), out()
{
    (void)get_key(key, sizeof key);
    rc4_init(state, key);
}

TmpNameGen::TmpNameGen(const char* key_text) : state(), key(), out()
{
    memcpy(key, key_text, strnlen(key_text, sizeof key));
    rc4_init(state, key);
}

TmpNameGen::~TmpNameGen()
{
}

ustring TmpNameGen::getTmpName()
{
    static const char map[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
    char name[kNameLength + 1];

    // A default mutex cannot fail to lock short of memory corruption; the
    // name is made either way so that callers always get one.
    const bool locked = pthread_mutex_lock(&m_lock) == 0;
    rc4_randomize(state, out, OUT_SIZE);
    // The 48 bits are read most significant first, six at a time, as base64
    // packs them.
    uint64_t bits = 0;
    for (int i = 0; i < OUT_SIZE; ++i)
        bits = (bits << 8) | out[i];
    if (locked)
        pthread_mutex_unlock(&m_lock);

    for (int i = kNameLength - 1; i >= 0; --i, bits >>= kBitsPerChar)
        name[i] = map[bits & kCharMask];
    name[kNameLength] = '\0';
    return ustring(name);
}

ustring TmpNameGen::getTmpPath(const ustring& dir)
{
    return dir + "/" + getTmpName();
}

int TmpNameGen::get_key(unsigned char* dst, unsigned long n)
{
    struct timeval now;
    if (gettimeofday(&now, nullptr) != 0)
        return -1;
    return snprintf(reinterpret_cast<char*>(dst), n, "%lu-%lu", static_cast<unsigned long>(now.tv_sec),
                    static_cast<unsigned long>(now.tv_usec));
}

// Every one of the 256 key bytes takes part, trailing zero bytes included:
// the key does not repeat modulo the length of its text.
void TmpNameGen::rc4_init(unsigned char* state, unsigned char* key)
{
    std::iota(state, state + STATE_SIZE, 0);
    if (key[0] == 0)
        FillKeyFromClock(key);
    unsigned char j = 0;
    for (int i = 0; i < STATE_SIZE; ++i) {
        j = static_cast<unsigned char>(j + state[i] + key[i]);
        std::swap(state[i], state[j]);
    }
}

void TmpNameGen::rc4_randomize(unsigned char* state, unsigned char* out, int len)
{
    unsigned char i = 0;
    unsigned char j = 0;
    for (int k = 0; k < len; ++k) {
        ++i;
        const unsigned char t = state[i];
        j = static_cast<unsigned char>(j + t);
        state[i] = state[j];
        state[j] = t;
        out[k] = state[static_cast<unsigned char>(state[i] + t)];
    }
}
