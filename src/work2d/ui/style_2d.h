// The few looks that pages of the 2D window share.
#pragma once

namespace tessarel {

// The option that is set stands out on a dark ground as on a light one, which a sunk button does not.
inline constexpr const char* StyleOptions =
    "QToolButton { border: 1px solid palette(mid); border-radius: 4px; padding: 4px; background: "
    "palette(button); }"
    "QToolButton:hover, QToolButton:focus { border-color: palette(highlight); }"
    "QToolButton:checked { border: 2px solid palette(highlight); padding: 3px; background: palette(base); }";

// The one button that must be found without looking for it; the same on a light and on a dark ground. Where
// it is not at hand it looks as any other.
inline constexpr const char* StyleStop =
    "QPushButton:enabled { background: #c92a2a; color: white; border: 1px solid #8f1d1d; border-radius: 6px; "
    "}"
    "QPushButton:enabled:hover, QPushButton:enabled:focus { background: #e03131; }"
    "QPushButton:enabled:pressed { background: #a51f1f; }";
inline constexpr int HauteurStop = 64; // pixels

} // namespace tessarel
