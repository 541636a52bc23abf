#pragma once
// The program's drawings, one function each. A picture that comes in two sizes is drawn at each of them: `scale` is the
// number of pixels to one unit of the drawing. No font is used, so that a drawing comes out the same everywhere.

#include <QImage>

namespace ecr {

QImage draw_icon(int side);   ///< the program's icon, `side` pixels wide and high
QImage draw_help(int scale);  ///< 24 x 24 units

QImage draw_word_mark(int scale);          ///< 172 x 38 units, opaque
QImage draw_corner(int width, int scale);  ///< `width` units wide, five eighths of that high, opaque

QImage draw_register_z300(int scale);  ///< 320 x 240 units
QImage draw_register_z320(int scale);  ///< 320 x 240 units

QImage draw_sample_logo();  ///< 384 x 162 dots of paper, one bit each: a logo as the register takes it

// Flags, 48 x 32 pixels, opaque.
QImage draw_flag_uk();
QImage draw_flag_spain();
QImage draw_flag_france();
QImage draw_flag_germany();
QImage draw_flag_netherlands();
QImage draw_flag_portugal();
QImage draw_flag_denmark();
QImage draw_flag_norway();

}  // namespace ecr
