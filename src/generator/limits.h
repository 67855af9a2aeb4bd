// What the generator bounds by itself.
#pragma once

/// A list walk writes its body twice, so walks inside each other double the text every time.
constexpr int kMaxCollectionLoops = 12;
