// Archive bytes unpacked by the extractor. Inputs with links are skipped: they can write outside
// the destination (docs/reliability.md), and the fuzzer runs on a real machine.
#include <archive.h>
#include <archive_entry.h>
#include <signal.h>
#include <sys/resource.h>
#include "extractor.h"
#include "fuzz-support.h"
#include "log.h"
#include "strtable.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::string levels = WriteScratch("levels", "extractor_debug=0\n", 18), out = ScratchFolder() + "/out";
    static const rlimit limit = {64 << 20, 64 << 20};  // a small bomb fails its writes instead of filling the disk
    static const bool ready = Logger::Initialize(Logger::TYPE_STDERR, "", levels.c_str(), 0) == 0 &&
                              signal(SIGXFSZ, SIG_IGN) != SIG_ERR && !setrlimit(RLIMIT_FSIZE, &limit);
    FUZZ_CHECK(ready && (StrTable::InitStrTable(), true));
    archive* reader = archive_read_new();
    archive_read_support_filter_all(reader), archive_read_support_format_all(reader);
    archive_entry* entry = nullptr;
    bool links = false;
    if (archive_read_open_memory(reader, data, size) == ARCHIVE_OK)
        while (!links && archive_read_next_header(reader, &entry) == ARCHIVE_OK)
            links = archive_entry_hardlink(entry) || archive_entry_symlink(entry) || archive_entry_filetype(entry) == AE_IFLNK;
    if (archive_read_free(reader), links)
        return 0;
    Extractor extractor;
    extractor.archive_path = WriteScratch("package", data, size).c_str();
    extractor.dest_path = out.c_str();
    const int result = extractor.Extract();
    FUZZ_CHECK((result == 0 || result == -1) && std::filesystem::remove_all(out) + 1);
    return 0;
}
