"""Reads a DXF with ezdxf, says what its audit finds, then each polyline as "x y" lines after a line "path"."""

import sys

import ezdxf

document = ezdxf.readfile(sys.argv[1])
audit = document.audit()
print("errors", len(audit.errors), "fixes", len(audit.fixes))
for entite in document.modelspace():
    print("path", entite.dxftype())
    if entite.dxftype() == "LWPOLYLINE":
        points = [(x, y) for x, y in entite.get_points("xy")]
        if entite.closed:
            points.append(points[0])
    elif entite.dxftype() == "POLYLINE":
        points = [(v.dxf.location.x, v.dxf.location.y) for v in entite.vertices]
        if entite.is_closed:
            points.append(points[0])
    elif entite.dxftype() == "LINE":
        points = [(entite.dxf.start.x, entite.dxf.start.y), (entite.dxf.end.x, entite.dxf.end.y)]
    else:
        points = []
    for x, y in points:
        print(f"{x:.4f} {y:.4f}")
