#!/usr/bin/env bash
# Regenerates the KML fixtures with the tools people export points from. Run once by hand
# (apt-get install gpsbabel gdal-bin python3-fastkml); the results are committed so that the tests
# need none of these tools.
set -euo pipefail
cd "$(dirname "$0")"
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

cat > "$tmp/pts.csv" <<'CSV'
lat,lon,name
55.751244,37.618423,Красная площадь
59.939095,30.315868,Дворцовая площадь
-33.868820,151.209296,Sydney Opera
CSV

# gpsbabel: waypoints as points only. Its "Created <date>" snippet changes every run: pinned.
gpsbabel -i unicsv -f "$tmp/pts.csv" -o kml,points=1 -F gpsbabel_points.kml
sed -i 's/Created [^<]*/Created 2024-01-01/' gpsbabel_points.kml

# ogr2ogr: the plain KML driver and the LIBKML one (coordinates on their own line, ",0" altitude).
ogr2ogr -f KML ogr_kml.kml "$tmp/pts.csv" -a_srs EPSG:4326 -dsco NameField=name \
    -oo X_POSSIBLE_NAMES=lon -oo Y_POSSIBLE_NAMES=lat
ogr2ogr -f LIBKML ogr_libkml.kml "$tmp/pts.csv" -a_srs EPSG:4326 \
    -oo X_POSSIBLE_NAMES=lon -oo Y_POSSIBLE_NAMES=lat

# fastkml: every element with a "kml:" prefix, points in a folder tree, one LineString placemark.
/usr/bin/python3 -W ignore - <<'PY'
from fastkml import kml
from fastkml.geometry import Point, LineString
ns = '{http://www.opengis.net/kml/2.2}'
k = kml.KML()
doc = kml.Document(ns, 'd1', 'Геозоны', 'Папки вложены')
k.append(doc)
outer = kml.Folder(ns, 'f1', 'Город')
doc.append(outer)
inner = kml.Folder(ns, 'f2', 'Остановки')
outer.append(inner)
def pm(name, geom, desc=''):
    p = kml.Placemark(ns, None, name, desc)
    p.geometry = geom
    return p
inner.append(pm('Вокзал', Point(37.657, 55.776, 145.0), 'с высотой'))
inner.append(pm('Рынок', Point(37.620, 55.740)))
outer.append(pm('Маршрут 12', LineString([(37.657, 55.776), (37.620, 55.740)])))
doc.append(pm('Депо', Point(37.5, 55.7)))
with open('fastkml_prefixed.kml', 'w', encoding='utf-8') as f:
    f.write(k.to_string(prettyprint=False))
PY
echo "written: $(ls *.kml | tr '\n' ' ')"
