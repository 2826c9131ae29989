"""A file system that takes small and capital letters for the same and knows no rename without replacing, as those of sticks:
one_case.py FOLDER PLACE shows a folder's files at a place until it is told to end. For Debian's own python3, which has fusepy."""

import errno
import os
import sys

import fusepy


class OneCase(fusepy.Operations):
    def __init__(self, folder):
        self.folder = folder

    def at(self, path):
        """Where something is, by whatever spelling; where it would be if it is not."""
        same = [name for name in os.listdir(self.folder) if "/" + name.lower() == path.lower()]
        return os.path.join(self.folder, *same or [path[1:]])

    def getattr(self, path, _=None):
        known = os.lstat(self.at(path))
        return {key: getattr(known, key) for key in ("st_mode", "st_ino", "st_nlink", "st_size", "st_mtime")}

    def readdir(self, *_):
        return [".", "..", *os.listdir(self.folder)]

    def rename(self, old, new):
        # Another spelling of itself is the same file, for which nothing happens.
        if self.at(new) != self.at(old):
            os.rename(self.at(old), self.at(new))

    def link(self, *_):
        raise fusepy.FuseOSError(errno.EPERM)

    def create(self, path, mode, _=None):
        return os.open(self.at(path), os.O_RDWR | os.O_CREAT | os.O_EXCL, mode)


fusepy.FUSE(OneCase(sys.argv[1]), sys.argv[2], foreground=True, nothreads=True, use_ino=True, hard_remove=True)
