#pragma once

/// Prints how long each of the demo's video filters takes for a frame of 640 x 480.
void MeasureFilters();
