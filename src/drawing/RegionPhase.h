// The life of a region. Only Regions changes the phase:
//
//   phase            press                     move             release             cancel          finishDrag
//   None             Drawing                   -                -                   -               -
//   Drawing          Drawing, a new box        Drawing          Standing; None *1   None            -
//   Standing         Moving; Sizing; merge *2  -                -                   -               -
//   Moving           as Standing *3            Moving;          Standing            as finishDrag   Standing
//                                              MovingView *4
//   MovingView       as Standing *3            MovingView       Standing, written   as finishDrag   Standing, written
//   Sizing           as Standing *3            Sizing           Standing, lifted    as finishDrag   Standing, side back
//
//   *1 a box without width or height      *3 after finishDrag
//   *2 on a side; inside; outside         *4 with the option to update only the Editing Area
//
// The keyboard presses, moves and releases too, on whole pixels: a press never leads to Sizing, and merges outside the
// pixels of the region. giveUp() leads from Drawing to None, and from the others to Standing at the place of the press.
//
// In every phase: clearRegion() and dropContent() lead to None, placed content leads to Standing, and another icon on
// the Editing Area calls clearRegion() before it arrives. Transformed content leads to Standing, after finishDrag().
#pragma once

namespace gp {

enum class RegionPhase {
  None,
  Drawing,     // the mouse draws a box; no content yet
  Standing,    // content was lifted, and the icon has it where the box is
  Moving,      // the same while the mouse is down on the region
  MovingView,  // the mouse moved it on picDisp; the icon still has it at its former place
  Sizing,      // the mouse moves a side of the box; content and icon pixels are those of the box at the press
};

}  // namespace gp
