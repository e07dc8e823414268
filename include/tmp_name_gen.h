#ifndef TMP_NAME_GEN_H
#define TMP_NAME_GEN_H

#include <pthread.h>

#include "ustring.h"

// Short random names for temporary files and folders: 8 characters that are
// safe in file names, drawn from an RC4 keystream keyed with the time of day.
// The names are unlikely to collide but are predictable; this is no security
// device.
class TmpNameGen {
public:
    static TmpNameGen* getInstance();

    // Keyed from the clock; getInstance() holds the one the process uses.
    TmpNameGen();
    // Keyed with a fixed text (zero-padded to 256 bytes), so that a sequence
    // of names can be reproduced.
    explicit TmpNameGen(const char* key_text);
    ~TmpNameGen();

    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

    ustring getTmpName();
    // dir + "/" + a new name; nothing is created on disk.
    ustring getTmpPath(const ustring& dir);

    // Writes "<seconds>-<microseconds>" of the time of day into dst, at most
    // n bytes; returns the snprintf result.
    int get_key(unsigned char* dst, unsigned long n);
    static void rc4_init(unsigned char* state, unsigned char* key);
    // i and j start at 0 on every call; only the permutation carries over.
    static void rc4_randomize(unsigned char* state, unsigned char* out, int len);

    static const int STATE_SIZE = 256;
    static const int KEY_SIZE = 256;
    static const int OUT_SIZE = 6;

private:
    unsigned char state[STATE_SIZE];
    unsigned char key[KEY_SIZE];
    unsigned char out[OUT_SIZE];

    static pthread_mutex_t m_lock;
};

#endif  // TMP_NAME_GEN_H
