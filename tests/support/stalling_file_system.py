#!/usr/bin/python3
"""A FUSE file system with one folder that stops answering, as a hung network mount does.

    stalling_file_system.py MOUNTPOINT

The tree: answers/ with two small files, which lists at once; stalls/ with one file, which
cannot be opened until the file system is released. Lines on standard output tell the test what
happens: "ready" once mounted, "stalled" each time an opening of stalls/ starts to wait,
"released" when the waits end.

The file system is released when its standard input ends (the test closes it, or the test itself
ends, crashed or not) or after a deadline: a program that waits for the folder then fails its
test instead of hanging the whole suite. Once released it unmounts itself and ends, so no stuck
mount outlives the test.
"""

import errno
import os
import stat
import subprocess
import sys
import threading

try:
    import fusepy as fuse  # Debian's name for the module
except ImportError:
    import fuse

DEADLINE_SECONDS = 60

FOLDERS = {'/': ['answers', 'stalls'], '/answers': ['a.txt', 'b.txt'], '/stalls': ['c.txt']}
FILES = {'/answers/a.txt': 1000, '/answers/b.txt': 2000, '/stalls/c.txt': 3000}


def say(line):
    print(line, flush=True)


class StallingFileSystem(fuse.Operations):
    def __init__(self, mountpoint):
        self.mountpoint = mountpoint
        self.released = threading.Event()

    def init(self, path):
        threading.Thread(target=self.release_when_told, daemon=True).start()
        say('ready')

    def release_when_told(self):
        told = threading.Thread(target=sys.stdin.read, daemon=True)
        told.start()
        told.join(DEADLINE_SECONDS)
        self.released.set()
        say('released')
        # Lazily: a program still inside the mount must not keep it (and this process) alive.
        subprocess.run(['umount', '-l', self.mountpoint], check=False)

    def getattr(self, path, fh=None):
        if path in FOLDERS:
            return dict(st_mode=stat.S_IFDIR | 0o755, st_nlink=2)
        if path in FILES:
            return dict(st_mode=stat.S_IFREG | 0o644, st_nlink=1, st_size=FILES[path])
        raise fuse.FuseOSError(errno.ENOENT)

    # Opening rather than listing waits: the kernel lets one listing of a folder at a time reach
    # this file system, so a second program listing stalls/ would wait unseen.
    def opendir(self, path):
        if path == '/stalls' and not self.released.is_set():
            say('stalled')
            # A program that is killed while it waits asks to be let go, and is, as by a hung NFS
            # mount; otherwise the kernel keeps the dead process until the request is answered.
            while not self.released.wait(0.05):
                if fuse._libfuse.fuse_interrupted():
                    raise fuse.FuseOSError(errno.EINTR)
        return 0

    def readdir(self, path, fh):
        return ['.', '..'] + FOLDERS.get(path, [])


if __name__ == '__main__':
    mountpoint = sys.argv[1]
    fuse.FUSE(StallingFileSystem(mountpoint), mountpoint, foreground=True, nothreads=False,
              intr=True)
    os._exit(0)  # the daemon threads may still wait on standard input
