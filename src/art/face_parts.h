#pragma once

#include <QPainterPath>

#include "art/face_look.h"
#include "art/palette.h"

class QPainter;

/// The parts of a head, in the units of the head frame.
namespace morlek::art {

void PaintEyes(QPainter& painter, Eyes eyes);
void PaintBrows(QPainter& painter, const BrowShape& shape);
void PaintNose(QPainter& painter, const Tone& skin);
/// Paints a mouth, its lips in a colour that stands out from skin or whiskers.
void PaintMouth(QPainter& painter, Mouth mouth, const QColor& lips);

void PaintMark(QPainter& painter, Mark mark, const Tone& skin);

/// Whiskers on jaw, cheeks and chin. The skull is the outline that stubble stays within.
void PaintBeard(QPainter& painter, Whiskers whiskers, const JawLine& jaw,
                const QPainterPath& skull);
/// Whether whiskers surround the mouth.
[[nodiscard]] bool SurroundMouth(Whiskers whiskers);
/// Whiskers above the mouth.
void PaintMustache(QPainter& painter, Whiskers whiskers);

void PaintEyewear(QPainter& painter, Eyewear eyewear);

}  // namespace morlek::art
