// Which pixels a painted Dessin touches: what has to be painted again when it changes.
#pragma once

#include "platform/images/peinture_qt.h"

#include <QRegion>

#include <span>

namespace tessarel {

// Of a stroke `epaisseur` pixels thick through these points, within the view. A slanting segment is followed
// by small tiles, so that it does not stand for the whole rectangle around it.
QRegion EmpriseTrait(std::span<const PointDessin> points, double epaisseur, const VueDessin& vue,
                     const MatriceDessin& matrice = {});
// Of a whole list. A list of many points counts as the boxes of its strokes, one with labels as the view.
QRegion EmpriseDessin(const DessinPrepare& dessin, const VueDessin& vue, const MatriceDessin& matrice = {});

} // namespace tessarel
