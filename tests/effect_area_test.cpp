// The rules of an effect's area, at their edges.
#include <climits>
#include <ostream>

#include <afxwin.h>

#include <gtest/gtest.h>

#include "effect_settings/apply_settings.h"
#include "effects/parts/number_edit.h"

using namespace effect_settings;

std::ostream& operator<<(std::ostream& out, const RECT& rect) {
    return out << "(" << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ")";
}

namespace {

TEST(EffectArea, IsClampedFromAboveOnly) {
    const struct {
        RECT area;
        VideoSize video;
        RECT clamped;
    } rows[] = {
        {{5, 5, 0, 0}, {640, 480}, {0, 0, 1, 1}},
        {{700, 0, 2000, 480}, {640, 480}, {639, 0, 640, 480}},
        {{0, 500, 640, 481}, {640, 480}, {0, 479, 640, 480}},
        {{0, 0, 640, 480}, {640, 480}, {0, 0, 640, 480}},
        {{10, 20, 10, 20}, {640, 480}, {9, 19, 10, 20}},
        {{-10, -20, 30, 40}, {640, 480}, {-10, -20, 30, 40}},
        {{3, 3, 9, 9}, {1, 1}, {0, 0, 1, 1}},
        {{3, 3, 9, 9}, {0, -7}, {0, 0, 1, 1}},
        {{INT_MAX, INT_MAX, INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}, {INT_MAX - 1, INT_MAX - 1, INT_MAX, INT_MAX}},
        {{INT_MIN, INT_MIN, INT_MIN, INT_MIN}, {INT_MIN, INT_MIN}, {INT_MIN, INT_MIN, 1, 1}},
    };
    for (const auto& row : rows) EXPECT_EQ(CRect(ClampEffectArea(row.area, row.video)), CRect(row.clamped)) << row.area;
}

TEST(EffectArea, IsValidWhenItHoldsAPixelOfTheVideo) {
    const struct {
        RECT area;
        VideoSize video;
        bool valid;
    } rows[] = {
        {{0, 0, 640, 480}, {640, 480}, true},
        {{0, 0, 1, 1}, {640, 480}, true},
        {{639, 479, 640, 480}, {640, 480}, true},
        {{-10, -10, 100, 100}, {640, 480}, true},
        {{-10, -10, -5, 100}, {640, 480}, true},
        {{0, 0, 641, 480}, {640, 480}, false},
        {{0, 0, 640, 481}, {640, 480}, false},
        {{10, 0, 10, 480}, {640, 480}, false},
        {{0, 10, 640, 10}, {640, 480}, false},
        {{11, 0, 10, 480}, {640, 480}, false},
        {{640, 0, 641, 480}, {640, 480}, false},
        {{0, 0, 1, 1}, {1, 1}, true},
        {{0, 0, 1, 1}, {0, 480}, false},
        {{0, 0, 1, 1}, {640, 0}, false},
        {{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}, true},
        {{INT_MAX, INT_MAX, INT_MIN, INT_MIN}, {640, 480}, false},
    };
    for (const auto& row : rows) EXPECT_EQ(ValidateEffectArea(row.area, row.video), row.valid) << row.area;
}

TEST(EffectArea, IsScaledByTruncationToAtLeastOnePixel) {
    const struct {
        RECT area;
        Sizes sizes;
        RECT scaled;
    } rows[] = {
        {{3, 5, 1, 1}, {{640, 480}, {320, 240}}, {1, 2, 1, 1}},
        {{-3, -5, 3, 5}, {{640, 480}, {320, 240}}, {-1, -2, 1, 2}},
        {{-10, -10, 100, 100}, {{640, 480}, {1280, 960}}, {-20, -20, 200, 200}},
        {{0, 0, 640, 480}, {{640, 480}, {720, 576}}, {0, 0, 720, 576}},
        {{1, 1, 2, 2}, {{3, 3}, {2, 2}}, {0, 0, 1, 1}},
        {{-10, -10, -5, -5}, {{640, 480}, {640, 480}}, {-10, -10, 1, 1}},
        {{5, 5, 9, 9}, {{640, 480}, {0, 0}}, {0, 0, 1, 1}},
        {{5, -5, 9, 9}, {{0, 0}, {640, 480}}, {INT_MIN, INT_MIN, 1, 1}},
        {{0, 0, 0, 0}, {{0, 0}, {0, 0}}, {INT_MIN, INT_MIN, 1, 1}},
        {{INT_MIN, INT_MIN, INT_MAX, INT_MAX},
         {{INT_MAX, INT_MAX}, {INT_MAX, INT_MAX}},
         {INT_MIN, INT_MIN, INT_MAX, INT_MAX}},
        {{INT_MIN, INT_MAX, INT_MAX, INT_MAX}, {{1, 1}, {2, 2}}, {INT_MIN, INT_MIN, 1, 1}},
        {{7, 7, 8, 8}, {{-1, -1}, {1, 1}}, {-7, -7, 1, 1}},
    };
    for (const auto& row : rows) EXPECT_EQ(CRect(ScaleEffectArea(row.area, row.sizes)), CRect(row.scaled)) << row.area;
}

TEST(EffectArea, EdgesAreReadUpToTheFirstOtherCharacter) {
    const struct {
        const wchar_t* text;
        int number;
    } rows[] = {
        {L"", 0},
        {L"0", 0},
        {L"42", 42},
        {L"-17", -17},
        {L"  8", 8},
        {L"12abc", 12},
        {L"abc", 0},
        {L"1.9", 1},
        {L"0x10", 0},
        {L"007", 7},
        {L"2147483647", INT_MAX},
        {L"2147483648", INT_MAX},
        {L"-2147483648", INT_MIN},
        {L"-2147483649", INT_MIN},
        {L"99999999999999999999999", INT_MAX}};
    for (const auto& row : rows) EXPECT_EQ(ParseNumber(row.text), row.number) << row.text;
}

}  // namespace
