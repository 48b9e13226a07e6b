// For the checked build: every allocation ends at a page that can't be touched, and none is ever given out again, so
// that the first access beside or after one stops the program.
#include <cstddef>
#include <cstdint>
#include <new>

#include <windows.h>

namespace {

constexpr std::size_t kPageSize = 4096;
constexpr std::size_t kAlignment = 16;  // What new promises; an overrun within the rest of it goes unseen.
constexpr std::size_t kChunkSize = std::size_t{1} << 28;

SRWLOCK g_lock = SRWLOCK_INIT;
std::uintptr_t g_next = 0;
std::uintptr_t g_end = 0;

std::size_t PagesFor(std::size_t size) { return (size + kPageSize - 1) / kPageSize * kPageSize; }

/// Address space for some pages and one that stays untouchable.
std::uintptr_t TakePages(std::size_t bytes) {
    ::AcquireSRWLockExclusive(&g_lock);
    if (g_end - g_next < bytes + kPageSize) {
        g_next = reinterpret_cast<std::uintptr_t>(::VirtualAlloc(nullptr, kChunkSize, MEM_RESERVE, PAGE_NOACCESS));
        g_end = g_next ? g_next + kChunkSize : 0;
    }
    const std::uintptr_t pages = g_next;
    if (pages) g_next += bytes + kPageSize;
    ::ReleaseSRWLockExclusive(&g_lock);
    return pages;
}

void* Allocate(std::size_t size) {
    const std::size_t rounded = (size + kAlignment - 1) / kAlignment * kAlignment;
    const std::size_t bytes = PagesFor(rounded ? rounded : kAlignment);
    const std::uintptr_t pages = bytes < kChunkSize / 2 ? TakePages(bytes) : 0;
    if (!pages || !::VirtualAlloc(reinterpret_cast<void*>(pages), bytes, MEM_COMMIT, PAGE_READWRITE)) return nullptr;
    return reinterpret_cast<void*>(pages + bytes - (rounded ? rounded : kAlignment));
}

void Free(void* address) {
    if (!address) return;
    MEMORY_BASIC_INFORMATION block{};
    ::VirtualQuery(address, &block, sizeof(block));
    ::VirtualFree(block.BaseAddress, block.RegionSize, MEM_DECOMMIT);
}

}  // namespace

void* operator new(std::size_t size) {
    void* address = Allocate(size);
    if (!address) throw std::bad_alloc();
    return address;
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* address) noexcept { Free(address); }
void operator delete[](void* address) noexcept { Free(address); }
void operator delete(void* address, std::size_t) noexcept { Free(address); }
void operator delete[](void* address, std::size_t) noexcept { Free(address); }
