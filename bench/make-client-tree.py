#!/usr/bin/env python3
"""Writes a per-user client bundle shaped like a real one, the same bytes on
every run for the same arguments:

    make-client-tree.py <folder> <unpacked MB> <entries> <build number>

Most of the bytes sit in a few large incompressible binaries, most of the
entries are small compressible text and resource files; images, folders and
a few symbolic links make up the rest. Contents/MacOS/cloud-ui is a shell
script that exits at once, so a benchmark run leaves nothing running; when
DROVIA_BENCH_STAMP names a file, it first writes the time it started there.
"""
import os
import random
import sys

SEED = 20261123
MIB = 1 << 20
BINARY_SHARE = 0.64   # of the bytes: frameworks and executables
IMAGE_SHARE = 0.16    # of the bytes: images, already compressed
IMAGE_ENTRY_SHARE = 0.06
FOLDER_ENTRY_SHARE = 0.08
LINK_COUNT = 12
BINARY_COUNT = 5
BINARY_MAX_CHUNK = 8 * MIB
WORDS = ("sync folder share file cloud upload download conflict version account "
         "settings network proxy quota device client server token session retry "
         "error warning notice progress pending complete paused resume").split()
CORPUS_WORDS = 1 << 18
CLIENT_SCRIPT = (b"#!/bin/sh\n"
                 b"[ -z \"$DROVIA_BENCH_STAMP\" ] || date +%s.%N > \"$DROVIA_BENCH_STAMP\"\n"
                 b"exit 0\n")
INFO_TEMPLATE = ("[Version]\nmajor_version=3\nminor_version=2\n"
                 "build_version={build}\nicon_overlay_version=0\n")


def write_file(path, data, mode=0o644):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as out:
        out.write(data)
    os.chmod(path, mode)


def text_corpus(rng):
    return " ".join(rng.choice(WORDS) for _ in range(CORPUS_WORDS)).encode()


def text_bytes(rng, corpus, size):
    # Slices of one corpus keep generation quick; offsets keep files apart.
    start = rng.randrange(len(corpus))
    data = corpus[start:start + size]
    while len(data) < size:
        data += corpus[:size - len(data)]
    return data


def make_folders(rng, root, count):
    folders = [os.path.join(root, "Contents", "Resources")]
    for index in range(count):
        parent = rng.choice(folders)
        folders.append(os.path.join(parent, "res%04d" % index))
    for folder in folders:
        os.makedirs(folder, exist_ok=True)
    return folders


def make_binaries(rng, root, total_bytes):
    names = []
    share = total_bytes // BINARY_COUNT
    for index in range(BINARY_COUNT):
        path = os.path.join(root, "Contents", "Frameworks", "libdrovia%d.so" % index)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as out:
            left = share
            while left > 0:
                chunk = min(left, BINARY_MAX_CHUNK)
                out.write(rng.randbytes(chunk))
                left -= chunk
        os.chmod(path, 0o755)
        names.append(path)
    return names


def make_images(rng, folders, count, total_bytes):
    size = max(1, total_bytes // max(1, count))
    for index in range(count):
        path = os.path.join(rng.choice(folders), "icon%04d.png" % index)
        write_file(path, b"\x89PNG\r\n\x1a\n" + rng.randbytes(size))


def make_texts(rng, folders, count, total_bytes):
    mean = max(1, total_bytes // max(1, count))
    corpus = text_corpus(rng)
    for index in range(count):
        size = rng.randint(1, 2 * mean)
        suffix = rng.choice((".qml", ".json", ".strings", ".txt", ".plist"))
        path = os.path.join(rng.choice(folders), "item%05d%s" % (index, suffix))
        write_file(path, text_bytes(rng, corpus, size))


def make_links(rng, root, targets):
    for index in range(LINK_COUNT):
        target = rng.choice(targets)
        link = os.path.join(root, "Contents", "Frameworks", "link%02d.so" % index)
        os.symlink(os.path.basename(target), link)


def main():
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    root, megabytes, entries, build = sys.argv[1], int(sys.argv[2]), int(sys.argv[3]), sys.argv[4]
    if os.path.exists(root):
        sys.exit("make-client-tree: %s exists" % root)
    rng = random.Random(SEED)
    total = megabytes * MIB
    folders = make_folders(rng, root, int(entries * FOLDER_ENTRY_SHARE))
    binaries = make_binaries(rng, root, int(total * BINARY_SHARE))
    image_count = int(entries * IMAGE_ENTRY_SHARE)
    make_images(rng, folders, image_count, int(total * IMAGE_SHARE))
    fixed = len(folders) + image_count + BINARY_COUNT + LINK_COUNT + 2
    text_bytes_total = total - int(total * BINARY_SHARE) - int(total * IMAGE_SHARE)
    make_texts(rng, folders, max(0, entries - fixed), text_bytes_total)
    make_links(rng, root, binaries)
    write_file(os.path.join(root, "Contents", "MacOS", "cloud-ui"), CLIENT_SCRIPT, 0o755)
    write_file(os.path.join(root, "Contents", "Resources", "INFO"),
               INFO_TEMPLATE.format(build=build).encode())


if __name__ == "__main__":
    main()
