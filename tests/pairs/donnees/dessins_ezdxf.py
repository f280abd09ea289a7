"""Makes drawings at random with ezdxf, all versions and kinds, blocks turned, mirrored, arrayed and nested, and prints
what it finds in each: name, number of curves, extents in mm. Usage: dessins_ezdxf.py FOLDER FIRST LAST."""
import os
import random
import sys

import ezdxf
from ezdxf import path
from ezdxf.math import Vec3

MM = {0: 1, 1: 25.4, 4: 1, 5: 10, 6: 1000}


def hasard(bas=-50, haut=50):
    return random.uniform(bas, haut)


def point():
    return (hasard(), hasard(), hasard())


def extrusion():
    tirage = random.random()
    if tirage < 0.5:
        return {}
    if tirage < 0.8:
        return {"extrusion": (0, 0, -1)}
    return {"extrusion": Vec3(point()).normalize()}


def sommets_bombes():
    return [(hasard(), hasard(), random.choice([0, 0, hasard(-2, 2)])) for _ in range(random.randint(2, 7))]


def ajouter_spline(espace):
    degre = random.randint(2, 5)
    points = [point() for _ in range(random.randint(degre + 1, degre + 6))]
    tirage = random.random()
    if tirage < 0.4:
        espace.add_open_spline(points, degree=degre)
    elif tirage < 0.7:
        espace.add_spline(degree=degre).set_closed(points, degree=degre)
    else:
        espace.add_spline(degree=degre).set_open_rational(points, [hasard(0.2, 3) for _ in points], degree=degre)


def ajouter(espace, ancien):
    genre = random.randrange(8)
    if genre == 0 or (ancien and genre in (3, 4, 7)):
        espace.add_line(point(), point())
    elif genre == 1:
        espace.add_arc(point(), abs(hasard()) + 0.1, hasard(0, 360), hasard(0, 360), dxfattribs=extrusion())
    elif genre == 2:
        espace.add_circle(point(), abs(hasard()) + 0.1, dxfattribs=extrusion())
    elif genre == 3:
        debut = hasard(0, 6)
        espace.add_ellipse(point(), (hasard(), hasard(), 0), hasard(0.1, 1), debut, debut + hasard(0.1, 6))
    elif genre == 4:
        polyligne = espace.add_lwpolyline(sommets_bombes(), format="xyb", dxfattribs=extrusion())
        polyligne.closed = random.random() < 0.5
        polyligne.dxf.elevation = hasard()
    elif genre == 5:
        polyligne = espace.add_polyline2d(sommets_bombes(), format="xyb", dxfattribs=extrusion())
        if random.random() < 0.5:
            polyligne.close(True)
    elif genre == 6:
        espace.add_polyline3d([point() for _ in range(random.randint(2, 7))])
    else:
        ajouter_spline(espace)


def placement():
    return {"rotation": hasard(0, 360), "xscale": hasard(-2, 2), "yscale": hasard(-2, 2), "zscale": hasard(-2, 2),
            **extrusion()}


def dessiner(graine):
    random.seed(graine)
    version = random.choice(["R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018"])
    dessin = ezdxf.new(version)
    ancien = version == "R12"
    unite = 0 if ancien else random.choice(list(MM))
    dessin.header["$INSUNITS"] = unite
    noms = []
    for rang in range(random.randint(0, 3)):
        bloc = dessin.blocks.new("B%d" % rang, base_point=point())
        for _ in range(random.randint(1, 6)):
            ajouter(bloc, ancien)
        for nom in noms:
            if random.random() < 0.6:
                bloc.add_blockref(nom, point(), dxfattribs=placement())
        noms.append("B%d" % rang)
    modele = dessin.modelspace()
    modele.add_line((0, 0), (1, 1))
    for _ in range(random.randint(1, 6)):
        ajouter(modele, ancien)
    for nom in noms:
        attributs = placement()
        if random.random() < 0.4:
            attributs.update(column_count=random.randint(1, 3), row_count=random.randint(1, 3),
                             column_spacing=hasard(), row_spacing=hasard())
        modele.add_blockref(nom, point(), dxfattribs=attributs)
    return dessin, MM[unite]


def developper(entites, placements):
    for entite in entites:
        if entite.dxftype() != "INSERT":
            yield entite, placements
            continue
        for copie in entite.multi_insert() if entite.mcount > 1 else [entite]:
            yield from developper(entite.block(), [copie.matrix44()] + placements)


def mesurer(dessin, mm):
    xs, ys, nombre = [], [], 0
    for entite, placements in developper(dessin.modelspace(), []):
        nombre += 1
        if entite.dxftype() == "SPLINE":
            # Points of the curve itself: the path of a rational one is an approximation that may run away.
            points = entite.construction_tool().approximate(2000)
        else:
            courbe = path.make_path(entite)
            for matrice in placements:
                courbe = courbe.transform(matrice)
            points, placements = courbe.flattening(0.005 / mm), []
        for p in points:
            for matrice in placements:
                p = matrice.transform(p)
            xs.append(p.x * mm)
            ys.append(p.y * mm)
    return nombre, min(xs), max(xs), min(ys), max(ys)


for graine in range(int(sys.argv[2]), int(sys.argv[3])):
    fichier = os.path.join(sys.argv[1], "hasard%d.dxf" % graine)
    dessin, mm = dessiner(graine)
    dessin.saveas(fichier)
    print(fichier, *mesurer(ezdxf.readfile(fichier), mm))
