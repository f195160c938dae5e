// Loaded into a server: while the file that QVR_TESTS_FULL names is there, no file of the process grows, as on a full
// disk. What a file has already can be written anew.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdbool.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

static bool grows(int file, off64_t end) {
  struct stat64 found;
  if (fstat64(file, &found) != 0 || !S_ISREG(found.st_mode) || end <= found.st_size) return false;
  const char* const full = getenv("QVR_TESTS_FULL");
  return full != NULL && access(full, F_OK) == 0;
}

// An append moves the position to where it ends anyway.
static off64_t position(int file) {
  const int flags = fcntl(file, F_GETFL);
  return lseek64(file, 0, flags != -1 && (flags & O_APPEND) != 0 ? SEEK_END : SEEK_CUR);
}

static size_t bytes_of(const struct iovec* parts, int count) {
  size_t bytes = 0;
  for (int i = 0; i < count; ++i) bytes += parts[i].iov_len;
  return bytes;
}

static int no_space(void) {
  errno = ENOSPC;
  return -1;
}

#define REAL(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))

ssize_t write(int file, const void* bytes, size_t count) {
  return grows(file, position(file) + (off64_t)count) ? no_space() : REAL(write)(file, bytes, count);
}

ssize_t writev(int file, const struct iovec* parts, int count) {
  return grows(file, position(file) + (off64_t)bytes_of(parts, count)) ? no_space() : REAL(writev)(file, parts, count);
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t from) {
  return grows(file, from + (off64_t)count) ? no_space() : REAL(pwrite)(file, bytes, count, from);
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t from) {
  return grows(file, from + (off64_t)count) ? no_space() : REAL(pwrite64)(file, bytes, count, from);
}

ssize_t pwritev(int file, const struct iovec* parts, int count, off_t from) {
  return grows(file, from + (off64_t)bytes_of(parts, count)) ? no_space() : REAL(pwritev)(file, parts, count, from);
}

ssize_t pwritev64(int file, const struct iovec* parts, int count, off64_t from) {
  return grows(file, from + (off64_t)bytes_of(parts, count)) ? no_space() : REAL(pwritev64)(file, parts, count, from);
}

int fallocate(int file, int mode, off_t from, off_t count) {
  return grows(file, from + count) ? no_space() : REAL(fallocate)(file, mode, from, count);
}

int fallocate64(int file, int mode, off64_t from, off64_t count) {
  return grows(file, from + count) ? no_space() : REAL(fallocate64)(file, mode, from, count);
}

int posix_fallocate(int file, off_t from, off_t count) {
  return grows(file, from + count) ? ENOSPC : REAL(posix_fallocate)(file, from, count);
}

int posix_fallocate64(int file, off64_t from, off64_t count) {
  return grows(file, from + count) ? ENOSPC : REAL(posix_fallocate64)(file, from, count);
}

int ftruncate(int file, off_t size) { return grows(file, size) ? no_space() : REAL(ftruncate)(file, size); }

int ftruncate64(int file, off64_t size) { return grows(file, size) ? no_space() : REAL(ftruncate64)(file, size); }
