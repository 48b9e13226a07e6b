#include "skin/skin_folder.h"

const CString& SkinFolder() {
    static CString folder;
    if (folder.IsEmpty() || ::GetFileAttributesW(folder) == INVALID_FILE_ATTRIBUTES) {
        WCHAR path[MAX_PATH] = {};
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        folder = path;
        folder = folder.Left(folder.ReverseFind(L'\\'));
        if (folder.IsEmpty() || folder[folder.GetLength() - 1] != L'\\') folder += L"\\";
    }
    return folder;
}
