/*
 * Counts the calls of a process that change files or start processes, or those that allocate memory, and lets
 * one of them fail or meet a signal. To be loaded before all libraries (LD_PRELOAD).
 *
 *   FAIL_WHICH   "files" or "memory"
 *   FAIL_AT      the call, from 1; 0 for none
 *   FAIL_HOW     the error number of its failure, or the number of a signal, negated
 *   FAIL_COUNT   a file for the number of calls
 */
#define _GNU_SOURCE
#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

void* real_malloc(size_t size) __asm__("__libc_malloc");
void* real_calloc(size_t count, size_t size) __asm__("__libc_calloc");
void* real_realloc(void* memory, size_t size) __asm__("__libc_realloc");

static const char files = 'f', memory = 'm'; /* first letters of FAIL_WHICH */

static char which;
static long at, how, calls;
static pid_t process;

__attribute__((constructor)) static void begin(void)
{
    at = atol(getenv("FAIL_AT"));
    how = atol(getenv("FAIL_HOW"));
    process = getpid();
}

static int (*program)(int, char**, char**);

static int counted(int count, char** arguments, char** environment)
{
    which = getenv("FAIL_WHICH")[0];
    return program(count, arguments, environment);
}

/* Calls count from main on: what libraries do before it cannot be reported. */
int start(int (*main)(int, char**, char**), int count, char** arguments, void (*init)(void),
          void (*fini)(void), void (*end)(void), void* stack) __asm__("__libc_start_main");

int start(int (*main)(int, char**, char**), int count, char** arguments, void (*init)(void),
          void (*fini)(void), void (*end)(void), void* stack)
{
    int (*real)(int (*)(int, char**, char**), int, char**, void (*)(void), void (*)(void), void (*)(void),
                void*);
    void* found = dlsym(RTLD_NEXT, "__libc_start_main");
    memcpy((void*)&real, (void*)&found, sizeof found);
    program = main;
    return real(counted, count, arguments, init, fini, end, stack);
}

__attribute__((destructor)) static void finish(void)
{
    const char* name = getenv("FAIL_COUNT");
    which = 0;
    if (!name || getpid() != process) return;
    FILE* file = fopen(name, "w");
    fprintf(file, "%ld\n", calls);
    fclose(file);
}

static int is_due(char kind)
{
    if (which != kind || ++calls != at) return 0;
    if (how < 0) raise((int)-how);
    if (how < 0) return 0;
    errno = (int)how;
    return 1;
}

static void* next(const char* name)
{
    const char kept = which;
    which = 0;
    void* found = dlsym(RTLD_NEXT, name);
    which = kept;
    return found;
}

#define REPLACE(type, failed, name, parameters, arguments)            \
    type name parameters                                              \
    {                                                                 \
        static __typeof__(&(name)) real;                              \
        void* found = real ? NULL : next(#name);                      \
        if (found) memcpy((void*)&real, (void*)&found, sizeof found); \
        return is_due(files) ? (failed) : real arguments;             \
    }

REPLACE(ssize_t, -1, write, (int fd, const void* buf, size_t n), (fd, buf, n))
REPLACE(int, -1, fsync, (int fd), (fd))
REPLACE(int, -1, ftruncate, (int fd, off_t length), (fd, length))
REPLACE(int, -1, fchmod, (int fd, mode_t mode), (fd, mode))
REPLACE(int, -1, chmod, (const char* file, mode_t mode), (file, mode))
REPLACE(int, -1, mkdir, (const char* path, mode_t mode), (path, mode))
REPLACE(int, -1, rmdir, (const char* path), (path))
REPLACE(int, -1, link, (const char* from, const char* to), (from, to))
REPLACE(int, -1, unlink, (const char* name), (name))
REPLACE(int, -1, remove, (const char* filename), (filename))
REPLACE(int, -1, rename, (const char* old, const char* new), (old, new))
REPLACE(int, -1, renameat2, (int oldfd, const char* old, int newfd, const char* new, unsigned flags),
        (oldfd, old, newfd, new, flags))
REPLACE(int, -1, pipe, (int pipedes[2]), (pipedes))
REPLACE(pid_t, -1, fork, (void), ())
REPLACE(char*, NULL, mkdtemp, (char* template), (template))
REPLACE(DIR*, NULL, opendir, (const char* name), (name))

/* The file is closed even so. */
int close(int fd)
{
    static __typeof__(&close) real;
    void* found = real ? NULL : next("close");
    if (found) memcpy((void*)&real, (void*)&found, sizeof found);
    const int fails = is_due(files);
    const int result = real(fd);
    return fails ? -1 : result;
}

int open(const char* file, int oflag, ...)
{
    va_list rest;
    va_start(rest, oflag);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return is_due(files) ? -1 : openat(AT_FDCWD, file, oflag, mode);
}

void* malloc(size_t size)
{
    return is_due(memory) ? NULL : real_malloc(size);
}

void* calloc(size_t nmemb, size_t size)
{
    return is_due(memory) ? NULL : real_calloc(nmemb, size);
}

void* realloc(void* ptr, size_t size)
{
    return is_due(memory) ? NULL : real_realloc(ptr, size);
}
