#include "imports.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <map>
#include <string>

#include "skin/gdi_plus.h"

namespace {

/// Of the C library, the functions that can fail: they need memory.
constexpr char kAllocators[] = "malloc calloc realloc _wcsdup";
/// Those that never fail, or whose failure the system itself would not outlive.
constexpr char kCannotFail[] =
    "AcquireSRWLockExclusive ReleaseSRWLockExclusive DeleteCriticalSection EnterCriticalSection "
    "InitializeCriticalSection LeaveCriticalSection GetCurrentThreadId GetCurrentProcessId "
    "GetCurrentProcess GetLastError SetLastError GetTickCount QueryPerformanceCounter "
    "GetSystemTimeAsFileTime RaiseException RtlAddFunctionTable RtlCaptureContext RtlLookupFunctionEntry "
    "RtlUnwindEx RtlVirtualUnwind Sleep SleepConditionVariableSRW WakeAllConditionVariable TlsGetValue "
    "VirtualProtect VirtualQuery GdipFree GdiplusShutdown SysFreeString SysStringLen ShowWindow "
    "DestroyWindow CoTaskMemFree CoUninitialize ";

/// What a function returns when it fails.
std::int32_t FailureOf(const std::string& library, const std::string& name) {
    if (name == "GetMessageW") return -1;
    if (IsListed("GdipAlloc SysAllocString SysAllocStringLen StringFromGUID2", name)) return 0;
    if (library == "gdiplus.dll") return Gdiplus::OutOfMemory;
    return library == "ole32.dll" || library == "oleaut32.dll" ? E_OUTOFMEMORY : 0;
}

/// Called by the stubs: where the call goes on.
extern "C" void* ImportTarget(Import* import) {
    const int call = import->calls++;
    if (import->next && !call) import->next->failingCall = import->next->calls;
    const bool fails = import->failingCall >= 0 &&
                       (call == import->failingCall || (import->failsOnward && call > import->failingCall));
    if (!fails) return import->function;
    ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return import->failing;
}

/// Machine code, written piece by piece.
class Code {
public:
    explicit Code(unsigned char* at) : m_at(at) {}

    Code& Add(std::initializer_list<unsigned char> bytes) {
        m_at = std::copy(bytes.begin(), bytes.end(), m_at);
        return *this;
    }
    template <typename Value>
    Code& AddValue(Value value) {
        constexpr std::size_t size = sizeof(Value);  // NOLINT(bugprone-sizeof-expression): a pointer is meant.
        std::memcpy(m_at, &value, size);
        m_at += size;
        return *this;
    }

private:
    unsigned char* m_at;
};

extern "C" void ImportGate();

#ifdef __x86_64__
asm(R"(
ImportGate:
    pushq %rcx
    pushq %rdx
    pushq %r8
    pushq %r9
    subq $104, %rsp
    movups %xmm0, 32(%rsp)
    movups %xmm1, 48(%rsp)
    movups %xmm2, 64(%rsp)
    movups %xmm3, 80(%rsp)
    movq %r11, %rcx
    call ImportTarget
    movups 32(%rsp), %xmm0
    movups 48(%rsp), %xmm1
    movups 64(%rsp), %xmm2
    movups 80(%rsp), %xmm3
    addq $104, %rsp
    popq %r9
    popq %r8
    popq %rdx
    popq %rcx
    jmp *%rax
)");
void WriteStub(unsigned char* stub, const Import* import) {
    // mov r11, import; mov r10, ImportGate; jmp r10
    Code(stub).Add({0x49, 0xBB}).AddValue(import).Add({0x49, 0xBA}).AddValue(&ImportGate).Add({0x41, 0xFF, 0xE2});
}

void WriteFailure(unsigned char* code, const std::string&, std::int32_t value) {
    Code(code).Add({0x48, 0xC7, 0xC0}).AddValue(value).Add({0xC3});  // mov rax, value; ret
}
#else
asm(R"(
_ImportGate:
    pushl %eax
    call _ImportTarget
    popl %ecx
    jmp *%eax
)");

void WriteStub(unsigned char* stub, const Import* import) {
    // mov eax, import; mov edx, ImportGate; jmp edx
    Code(stub).Add({0xB8}).AddValue(import).Add({0xBA}).AddValue(&ImportGate).Add({0xFF, 0xE2});
}

/// Of the system's functions, which remove their arguments themselves; 0 for the C library's.
std::uint16_t ArgumentBytes(const std::string& name) {
    static const std::map<std::string, std::uint16_t> sizes = {
#include "argument_bytes.h"
    };
    const auto found = sizes.find(name);
    return found == sizes.end() ? std::uint16_t{0} : found->second;
}

void WriteFailure(unsigned char* code, const std::string& name, std::int32_t value) {
    Code(code).Add({0xB8}).AddValue(value).Add({0xC2}).AddValue(ArgumentBytes(name));  // mov eax, value; ret bytes
}
#endif

struct Place {
    Import import;
    void** slot;
};

std::vector<Place> FindPlaces() {
    std::vector<Place> places;
    auto* base = reinterpret_cast<unsigned char*>(::GetModuleHandleW(L"EffectSettings.dll"));
    const auto* head =
        reinterpret_cast<const IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const auto& directory = head->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* table = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress); table->Name;
         ++table) {
        std::string library = reinterpret_cast<const char*>(base + table->Name);
        std::transform(library.begin(), library.end(), library.begin(),
                       [](char letter) { return static_cast<char>(letter | 0x20); });
        const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + table->OriginalFirstThunk);
        auto** slots = reinterpret_cast<void**>(base + table->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            const std::string name =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData)->Name;
            if (IsListed(kCannotFail, name) || (library == "msvcrt.dll" && !IsListed(kAllocators, name))) continue;
            places.push_back({{library, name, *slots, nullptr}, slots});
        }
    }
    return places;
}

std::vector<Import> PutStubs() {
    constexpr std::size_t kStubSize = 32;
    constexpr std::size_t kFailureSize = 16;
    const std::vector<Place> places = FindPlaces();
    std::vector<Import> imports;
    imports.reserve(places.size());
    auto* stubs = static_cast<unsigned char*>(::VirtualAlloc(
        nullptr, places.size() * (kStubSize + kFailureSize), MEM_RESERVE | MEM_COMMIT, PAGE_EXECUTE_READWRITE));
    for (const Place& place : places) {
        imports.push_back(place.import);
        unsigned char* stub = stubs + (imports.size() - 1) * (kStubSize + kFailureSize);
        Import& import = imports.back();
        WriteStub(stub, &import);
        import.failing = stub + kStubSize;
        WriteFailure(stub + kStubSize, import.name, FailureOf(import.library, import.name));
        DWORD before = 0;
        ::VirtualProtect(place.slot, sizeof(void*), PAGE_READWRITE, &before);
        *place.slot = stub;
        ::VirtualProtect(place.slot, sizeof(void*), before, &before);
    }
    return imports;
}

}  // namespace

bool IsListed(const std::string& list, const std::string& name) {
    return (" " + list + " ").find(" " + name + " ") != std::string::npos;
}

std::vector<Import>& LibraryImports() {
    static std::vector<Import> imports = PutStubs();
    return imports;
}

void ArmImport(Import& import, int failingCall, bool failsOnward) {
    import.calls = 0;
    import.failingCall = failingCall;
    import.failsOnward = failsOnward;
}
