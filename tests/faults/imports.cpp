#include "imports.h"

#include <algorithm>
#include <cstring>
#include <string>

#include <windows.h>

namespace {

std::size_t ReturnNull() { return 0; }
std::size_t ReturnMinusOne() { return static_cast<std::size_t>(-1); }
std::size_t ReturnGdiPlusOutOfMemory() { return 3; }
std::size_t ReturnOutOfMemory() { return static_cast<std::size_t>(E_OUTOFMEMORY); }

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
    "DestroyWindow CoTaskMemFree ";

void* FailingFor(const std::string& library, const std::string& name) {
    if (name == "GetMessageW") return reinterpret_cast<void*>(&ReturnMinusOne);
    if (IsListed("GdipAlloc SysAllocString SysAllocStringLen StringFromGUID2", name)) {
        return reinterpret_cast<void*>(&ReturnNull);
    }
    if (library == "gdiplus.dll") return reinterpret_cast<void*>(&ReturnGdiPlusOutOfMemory);
    if (library == "ole32.dll" || library == "oleaut32.dll") return reinterpret_cast<void*>(&ReturnOutOfMemory);
    return reinterpret_cast<void*>(&ReturnNull);
}

#ifdef __x86_64__
/// Called by the stubs with the arguments put aside: where the call goes on.
extern "C" void* ImportTarget(Import* import) {
    const int call = import->calls++;
    if (import->next && !call) import->next->failingCall = import->next->calls;
    const bool fails = import->failingCall >= 0 &&
                       (call == import->failingCall || (import->failsOnward && call > import->failingCall));
    if (!fails) return import->function;
    ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return import->failing;
}

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
extern "C" void ImportGate();

/// mov r11, import; mov r10, ImportGate; jmp r10
void WriteStub(unsigned char* stub, const Import* import) {
    const unsigned char code[] = {
        0x49, 0xBB, 0, 0, 0, 0, 0, 0, 0, 0, 0x49, 0xBA, 0, 0, 0, 0, 0, 0, 0, 0, 0x41, 0xFF, 0xE2};
    const auto gate = &ImportGate;
    std::memcpy(stub, code, sizeof(code));
    std::memcpy(stub + 2, &import, sizeof(import));
    std::memcpy(stub + 12, &gate, sizeof(gate));
}
#else
void WriteStub(unsigned char*, const Import*) {}
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
            places.push_back({{library, name, *slots, FailingFor(library, name)}, slots});
        }
    }
    return places;
}

std::vector<Import> PutStubs() {
    if (sizeof(void*) != 8) return {};
    constexpr std::size_t kStubSize = 32;
    const std::vector<Place> places = FindPlaces();
    std::vector<Import> imports;
    imports.reserve(places.size());
    auto* stubs = static_cast<unsigned char*>(
        ::VirtualAlloc(nullptr, places.size() * kStubSize, MEM_RESERVE | MEM_COMMIT, PAGE_EXECUTE_READWRITE));
    for (const Place& place : places) {
        imports.push_back(place.import);
        unsigned char* stub = stubs + (imports.size() - 1) * kStubSize;
        WriteStub(stub, &imports.back());
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
