// What columns and rows share: how large they are, and how they share out the space that their
// children leave free.
#pragma once

#include <optional>
#include <string>

#include "ui/widget_writer.h"

/// One axis of a column or a row: the property that gives a size along it, and the locals of the
/// block and the frame.
struct FlexAxis {
    const char* key;
    const char* container;
    const char* forced;
    const char* window;
    // Along which the children follow each other; null for the other one.
    const char* fixedSum;
    const char* remaining;
    const char* unit;       ///< The length of one share.
    const char* space;      ///< The local that holds the length of an `இவெ`.
    const char* spaceBase;  ///< What 100 % means to an `இவெ` in the sum.
    const char* cursor;     ///< Where the next child begins.
    float (*measure)(const Statement*);
};

extern const FlexAxis kDown;
extern const FlexAxis kAcross;

/// Declares the container's size: the forced one or else what it measures, its own number, or the
/// window's at a page's own corner.
void writeContainerSize(WidgetWriter& w, const Site& at, const FlexAxis& axis);

/// The number of shares that a child takes of the free space; nothing for one that keeps its size.
std::optional<int> shareOf(const WidgetNode& child);

/// True for a child that takes one share, whatever its `பங்கு`.
bool takesOneShare(const WidgetNode& child);

/// The length of a child that takes shares: "unitFlexH" or "unitFlexH * 2.0f".
std::string shareText(const WidgetNode& child, const FlexAxis& axis);

/// The same as what the next child is moved on by.
std::string shareAdvance(const WidgetNode& child, const FlexAxis& axis);

/// Declares the spacing, the number of shares and the length of one.
void writeShares(WidgetWriter& w, const WidgetNode& container, const FlexAxis& axis);

bool isSpace(const WidgetNode& child);

/// Moves on by the length of an `இவெ`, which has nothing to draw.
void writeSpaceAdvance(WidgetWriter& w, const WidgetNode& space, const FlexAxis& axis);

/// A child with the size that `forced` names; of a `வெற்றிடம்` nothing is drawn.
void writePlacedChild(WidgetWriter& w, const WidgetNode& child, const std::string& x,
                      const std::string& y, const Forced& forced);
