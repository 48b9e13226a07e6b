// The groups of rows; each is measured in a source of its own.
#pragma once

#include "benchmarks/report.h"

class Library;

void MeasureDragging(Report& report, Library& library,
                     bool quick);        ///< The exact rows, unless it is quick also the times.
void MeasureSlowFilter(Report& report);  ///< Exact.
void MeasureSize(Report& report);        ///< Exact.
void MeasureOpening(Report& report, Library& library);
void MeasurePointing(Report& report, Library& library);  ///< Moves, hovers and repaints.
void MeasureProcess(Report& report);                     ///< In processes of their own: loading, memory.
