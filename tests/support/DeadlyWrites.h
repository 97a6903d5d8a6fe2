#pragma once

// To be included by one source of a test program: the calls below take the C library's places in it, for the
// engine and for Qt too.

#include <QByteArray>
#include <QList>

#include <cerrno>
#include <csignal>
#include <functional>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

/// Other lives of this program that die at a chosen change of a file: before the write, the length, the
/// rename, the name given or taken has been done.
namespace deadlywrites {

constexpr int most = 100'000;

/// Shared with the other life.
struct Log
{
    int count = 0;
    int deadly = -1;
    char changes[most] = {};
};

inline Log*& log()
{
    static Log* shared = nullptr;
    return shared;
}

inline void change(char kind)
{
    Log* here = log();
    if (!here)
        return;
    if (here->count == here->deadly)
        ::kill(::getpid(), SIGKILL);
    if (here->count < most)
        here->changes[here->count++] = kind;
}

/// Does the work in another life that dies at that change; never for -1. Gives the changes that it has made.
/// The shop's file is to be closed meanwhile.
inline QByteArray live(const std::function<void()>& work, int deadly)
{
    void* shared = ::mmap(nullptr, sizeof(Log), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    auto* made = new (shared) Log;
    made->deadly = deadly;
    const pid_t other = ::fork();
    if (other == 0) {
        log() = made;
        try {
            work();
        } catch (...) {
            ::_exit(1);
        }
        ::_exit(0);
    }
    int end = 0;
    ::waitpid(other, &end, 0);
    const bool asMeant = deadly < 0 ? WIFEXITED(end) && WEXITSTATUS(end) == 0 : WIFSIGNALED(end);
    const QByteArray changes = asMeant ? QByteArray(made->changes, made->count) : QByteArray();
    ::munmap(shared, sizeof(Log));
    return changes;
}

/// Where to die: at each first change of a kind in a row of them (the pages of a file, say), and at the last
/// where the row is long.
inline QList<int> places(const QByteArray& changes)
{
    constexpr int isLong = 4;
    QList<int> found;
    for (int first = 0; first < changes.size();) {
        int end = first;
        while (end < changes.size() && changes[end] == changes[first])
            ++end;
        found << first;
        if (end - first >= isLong)
            found << end - 1;
        first = end;
    }
    return found;
}

inline long call(char kind, long number, auto... values)
{
    change(kind);
    return ::syscall(number, values...);
}

} // namespace deadlywrites

extern "C" {
ssize_t write(int file, const void* bytes, size_t count)
{
    return file > STDERR_FILENO ? deadlywrites::call('w', SYS_write, file, bytes, count)
                                : ::syscall(SYS_write, file, bytes, count);
}
ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t place)
{
    return deadlywrites::call('p', SYS_pwrite64, file, bytes, count, place);
}
ssize_t sendfile64(int to, int from, off64_t* place, size_t count)
{
    return deadlywrites::call('s', SYS_sendfile, to, from, place, count);
}
int ftruncate64(int file, off64_t length) noexcept
{
    return int(deadlywrites::call('t', SYS_ftruncate, file, length));
}
int fsync(int file) { return int(deadlywrites::call('f', SYS_fsync, file)); }
int fdatasync(int file) { return int(deadlywrites::call('f', SYS_fdatasync, file)); }
int rename(const char* from, const char* to) noexcept
{
    return int(deadlywrites::call('r', SYS_rename, from, to));
}
int link(const char* from, const char* to) noexcept
{
    return int(deadlywrites::call('l', SYS_link, from, to));
}
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    return int(deadlywrites::call('l', SYS_linkat, fromFolder, from, toFolder, to, flags));
}
int unlink(const char* path) noexcept { return int(deadlywrites::call('u', SYS_unlink, path)); }
int futimens(int file, const struct timespec* times) noexcept
{
    return int(deadlywrites::call('d', SYS_utimensat, file, nullptr, times, 0));
}
}
