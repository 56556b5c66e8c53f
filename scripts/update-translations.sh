#!/usr/bin/env bash
# Refreshes translations/zrk_ru.ts and zrk_en.ts from the sources (qtTrId with //% texts) and from
# the headers uic generated for the forms (which carry the ids only). The Russian catalogue takes
# each message's source text as its translation where it has none; English is translated by hand.
# Needs a configured build in build/ for the generated form headers.
set -euo pipefail
cd "$(dirname "$0")/.."
dirs=(device config_model config_ui telemetry service map translations)
ui_headers=$(find build -path '*_autogen*' -name 'ui_*.h' 2>/dev/null || true)
for l in ru en; do
  # Forms are read through their generated headers (ids as texts), not as .ui files.
  lupdate -no-obsolete -locations none -extensions c,cpp,h "${dirs[@]}" $ui_headers -ts "translations/zrk_$l.ts" >/dev/null
done
/usr/bin/python3 scripts/fill_ru_catalogue.py translations/zrk_ru.ts
echo "updated; untranslated English ids:"
/usr/bin/python3 - <<'PY'
import xml.etree.ElementTree as ET
root = ET.parse('translations/zrk_en.ts').getroot()
for m in root.iter('message'):
    t = m.find('translation')
    if t is None or not (t.text or '').strip() or t.get('type') == 'unfinished':
        print('  ', m.get('id'))
PY
