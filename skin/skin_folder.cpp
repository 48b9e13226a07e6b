#include "skin/skin_folder.h"

CString SkinFolder() {
    WCHAR path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    CString folder = path;
    folder = folder.Left(folder.ReverseFind(L'\\'));
    if (folder.IsEmpty() || folder[folder.GetLength() - 1] != L'\\') folder += L"\\";
    return folder;
}
