#!/usr/bin/env bash
# Refreshes translations/zrk_ru.ts and zrk_en.ts from the sources (qtTrId with //% texts) and from
# the headers uic generated for the forms (which carry the ids only), and the host's own
# translations/zrk-host_ru.ts and zrk-host_en.ts from host/. The Russian catalogues take each
# message's source text as their translation where they have none; English is translated by hand.
# Needs a configured build in build/ for the generated form headers.
set -euo pipefail
cd "$(dirname "$0")/.."
dirs=(device config_model config_ui telemetry service map translations)
ui_headers=$(find build -path '*_autogen*' -name 'ui_*.h' 2>/dev/null || true)
for l in ru en; do
  # Forms are read through their generated headers (ids as texts), not as .ui files.
  lupdate -no-obsolete -locations none -extensions c,cpp,h "${dirs[@]}" $ui_headers -ts "translations/zrk_$l.ts" >/dev/null
done
# The host is a program of its own: its catalogues never take the plug-in's texts, nor the reverse.
for l in ru en; do
  lupdate -no-obsolete -locations none -extensions c,cpp,h host -ts "translations/zrk-host_$l.ts" >/dev/null
done
/usr/bin/python3 scripts/fill_ru_catalogue.py translations/zrk_ru.ts
/usr/bin/python3 scripts/fill_ru_catalogue.py translations/zrk-host_ru.ts
echo "updated; untranslated English ids:"
/usr/bin/python3 - <<'PY'
import xml.etree.ElementTree as ET
for path in ('translations/zrk_en.ts', 'translations/zrk-host_en.ts'):
    root = ET.parse(path).getroot()
    for m in root.iter('message'):
        t = m.find('translation')
        if t is None or not (t.text or '').strip() or t.get('type') == 'unfinished':
            print('  ', path, m.get('id'))
PY
