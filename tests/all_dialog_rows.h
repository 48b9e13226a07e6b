// What all dialogs send and save, as data.
#pragma once

#include "area_dialog_rows.h"
#include "plain_dialog_rows.h"

inline const std::vector<DialogRow>& AllDialogRows() {
    static const std::vector<DialogRow> rows = [] {
        std::vector<DialogRow> all = PlainDialogRows();
        for (DialogRow& row : AreaDialogRows()) all.push_back(std::move(row));
        return all;
    }();
    return rows;
}
