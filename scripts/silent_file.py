#!/usr/bin/env python3
"""Mounts a file system with one file, silent.jpg, that can be opened and never answers a read.

Usage: silent_file.py FOLDER. Needs root; runs until the folder is unmounted. A read ends only when its thread is
told to end.
"""
import ctypes
import errno
import os
import stat
import struct
import sys

LOOKUP, FORGET, GETATTR, OPEN, READ, STATFS, RELEASE = 1, 2, 3, 14, 15, 17, 18
FLUSH, INIT, OPENDIR, READDIR, RELEASEDIR, INTERRUPT, BATCH_FORGET = 25, 26, 27, 28, 29, 36, 42
NAME = b"silent.jpg"
ROOT, FILE = 1, 2
SIZE = 1 << 20
A_DAY = 86400
DIRECT_IO, KEEP_CACHE = 1, 2


def attributes(node):
    mode = stat.S_IFDIR | 0o755 if node == ROOT else stat.S_IFREG | 0o644
    return struct.pack("<6Q10I", node, SIZE, SIZE // 512, 0, 0, 0, 0, 0, 0, mode, 1, 0, 0, 0, 4096, 0)


def entries():
    return struct.pack("<QQII", FILE, 1, len(NAME), stat.S_IFREG >> 12) + NAME.ljust(16, b"\0")


def answer(opcode, node, body):
    """The body of the answer, or an error number."""
    if opcode == INIT:
        return struct.pack("<IIIIII", 7, 12, 0, 0, 0, 4096)
    if opcode == LOOKUP:
        if body.rstrip(b"\0") != NAME:
            return errno.ENOENT
        return struct.pack("<QQQQII", FILE, 0, A_DAY, A_DAY, 0, 0) + attributes(FILE)
    if opcode == GETATTR:
        return struct.pack("<QII", A_DAY, 0, 0) + attributes(node)
    if opcode == OPEN:
        # Without a cache: its pages are locked while a read waits, and the next one who opens the file would wait for
        # them.
        return struct.pack("<QII", 0, DIRECT_IO | KEEP_CACHE, 0)
    if opcode == OPENDIR:
        return struct.pack("<QII", 0, 0, 0)
    if opcode == READDIR:
        offset = struct.unpack_from("<QQ", body)[1]
        return entries() if offset == 0 else b""
    if opcode == STATFS:
        return bytes(80)
    if opcode in (RELEASE, RELEASEDIR, FLUSH):
        return b""
    return errno.ENOSYS


def main(folder):
    device = os.open("/dev/fuse", os.O_RDWR)
    options = f"fd={device},rootmode=40000,user_id=0,group_id=0,allow_other".encode()
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.mount(b"silent", folder.encode(), b"fuse", 0, options) != 0:
        sys.exit(f"cannot mount: {os.strerror(ctypes.get_errno())}")
    reads = set()
    while True:
        try:
            request = os.read(device, 1 << 20)
        except OSError as error:
            if error.errno == errno.ENODEV:  # unmounted
                return
            continue
        _, opcode, unique, node = struct.unpack_from("<IIQQ", request)
        body = request[40:]
        if opcode in (FORGET, BATCH_FORGET):
            continue
        if opcode == READ:
            reads.add(unique)
            continue
        if opcode == INTERRUPT:
            unique = struct.unpack_from("<Q", body)[0]
            if unique not in reads:
                continue
            reads.discard(unique)
            result = errno.EINTR
        else:
            result = answer(opcode, node, body)
        error, content = (-result, b"") if isinstance(result, int) else (0, result)
        try:
            os.write(device, struct.pack("<IiQ", 16 + len(content), error, unique) + content)
        except OSError:
            continue


main(sys.argv[1])
