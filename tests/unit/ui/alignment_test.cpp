// Where a content lies in what holds it: nine places.
#include "ui/alignment.h"

#include <gtest/gtest.h>

namespace {

using Place = std::pair<float, float>;

TEST(Alignment, IsAGridOfNinePlaces) {
    const Place places[] = {{-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {0, 0},
                            {1, 0},   {-1, 1}, {0, 1},  {1, 1}};
    for (int i = 0; i < 9; i++) {
        EXPECT_EQ(getAlignmentCoords(static_cast<சீரமைப்பு_வகை>(i)), places[i]) << i;
    }
    EXPECT_EQ(getAlignmentCoords(சீரமைப்பு_வகை::மேல்_மையம்), (Place{0, -1}));
    EXPECT_EQ(getAlignmentCoords(சீரமைப்பு_வகை::கீழ்_இடது), (Place{-1, 1}));
}

TEST(Alignment, OfAnyOtherValueIsTheFirst) {
    for (const int value : {-1, 9, 100}) {
        EXPECT_EQ(getAlignmentCoords(static_cast<சீரமைப்பு_வகை>(value)), (Place{-1, -1})) << value;
    }
}

TEST(Alignment, PlacesAChildInItsContainer) {
    const auto place = [](int alignment) {
        float x = -5;
        float y = -5;
        calculateAlign(static_cast<சீரமைப்பு_வகை>(alignment), 100, 60, 20, 30, x, y);
        return Place{x, y};
    };
    const Place places[] = {{0, 0},   {40, 0}, {80, 0},  {0, 15}, {40, 15},
                            {80, 15}, {0, 30}, {40, 30}, {80, 30}};
    for (int i = 0; i < 9; i++) EXPECT_EQ(place(i), places[i]) << i;
    EXPECT_EQ(place(42), (Place{0, 0}));
}

TEST(Alignment, LetsALargerChildOverhang) {
    float x = 0;
    float y = 0;
    calculateAlign(சீரமைப்பு_வகை::மையம், 100, 60, 120, 80, x, y);
    EXPECT_EQ((Place{x, y}), (Place{-10, -10}));
}

}  // namespace
