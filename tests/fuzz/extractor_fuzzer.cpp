// Archive bytes unpacked into a scratch folder by the launcher's extractor.
// Inputs with link entries are skipped: the extractor follows the library's
// defaults for links, which can reach outside the destination (see
// docs/reliability.md), and the fuzzer runs on a real machine.
#include <signal.h>
#include <sys/resource.h>

#include <archive.h>
#include <archive_entry.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "extractor.h"
#include "fuzz-check.h"
#include "log.h"
#include "scratch-folder.h"
#include "strtable.h"

namespace {

// Keeps a small archive that unpacks to gigabytes from filling the disk:
// writes beyond this fail instead.
const rlim_t kMaxFileBytes = 64 << 20;
const char kSilentLevels[] = "extractor_debug=0\n";

struct ReaderFree {
    void operator()(archive* reader) const { archive_read_free(reader); }
};

bool HasLinkEntries(const uint8_t* data, size_t size)
{
    std::unique_ptr<archive, ReaderFree> reader(archive_read_new());
    if (!reader || archive_read_support_filter_all(reader.get()) != ARCHIVE_OK ||
        archive_read_support_format_all(reader.get()) != ARCHIVE_OK ||
        archive_read_open_memory(reader.get(), data, size) != ARCHIVE_OK)
        return false;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        if (archive_entry_hardlink(entry) || archive_entry_symlink(entry) ||
            archive_entry_filetype(entry) == AE_IFLNK)
            return true;
    }
    return false;
}

bool LimitFileSize()
{
    const struct rlimit limit = {kMaxFileBytes, kMaxFileBytes};
    return signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    const std::string levels = ScratchFolder() + "/levels";
    FUZZ_CHECK(WriteWhole(levels, reinterpret_cast<const unsigned char*>(kSilentLevels), sizeof kSilentLevels - 1));
    FUZZ_CHECK(Logger::Initialize(Logger::TYPE_STDERR, "", levels.c_str(), 0) == 0);
    FUZZ_CHECK(LimitFileSize());
    StrTable::InitStrTable();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (HasLinkEntries(data, size))
        return 0;
    static const std::string archive_path = ScratchFolder() + "/package";
    static const std::string destination = ScratchFolder() + "/unpacked";
    FUZZ_CHECK(WriteWhole(archive_path, data, size));

    Extractor extractor;
    extractor.archive_path = archive_path.c_str();
    extractor.dest_path = destination.c_str();
    const int result = extractor.Extract();
    FUZZ_CHECK(result == 0 || result == -1);
    RemoveTree(destination);
    return 0;
}
