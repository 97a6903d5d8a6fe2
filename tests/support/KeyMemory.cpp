// Deriving the file's key, at each opening, allocates and frees some 100,000 times. Watched by the sanitizer
// that takes most of the tests' time, so the cipher's library gets its memory from the C library itself.
#include <dlfcn.h>

#include <cstddef>

// The C library's own names, which the sanitizer does not take the place of.
extern "C" {
void* __libc_malloc(size_t size);                // NOLINT(bugprone-reserved-identifier)
void* __libc_realloc(void* memory, size_t size); // NOLINT(bugprone-reserved-identifier)
void __libc_free(void* memory);                  // NOLINT(bugprone-reserved-identifier)
}

namespace {

void* allocate(size_t size, const char*, int) { return __libc_malloc(size); }
void* reallocate(void* memory, size_t size, const char*, int) { return __libc_realloc(memory, size); }
void release(void* memory, const char*, int) { __libc_free(memory); }

/// Before the library's first use; without that function the tests are only slower.
[[gnu::constructor]] void setKeyMemory()
{
    using Set = int (*)(decltype(&allocate), decltype(&reallocate), decltype(&release));
    if (const auto set = reinterpret_cast<Set>(::dlsym(RTLD_DEFAULT, "CRYPTO_set_mem_functions")))
        set(allocate, reallocate, release);
}

} // namespace
