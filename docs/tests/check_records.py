#!/usr/bin/env python3
"""The records page of the API reference against the catalogues as written.

Reads every record line of the domain catalogues (Classes/<domain>/<Domain>Catalogue.hpp) as text, not
through the program that wrote the page, and checks that the records page has one section per record
naming both of its classes, and that each record class's own page shows its JSON keys.

    check_records.py CLASSES_DIR HTML_DIR
"""
import pathlib
import re
import sys

RECORD_LINE = re.compile(r'\b(BOTH|DICT|TYPED)\(\s*(\w+)(?:\s*,\s*(\w+))?\s*\)')


def catalogue_records(classes):
    """Each record as the tuple of its class names, in catalogue order, domain by domain."""
    records = []
    for domain in sorted(p for p in pathlib.Path(classes).iterdir() if p.is_dir()):
        catalogue = domain / f'{domain.name.capitalize()}Catalogue.hpp'
        if not catalogue.exists():
            continue  # frame/, whose Catalogue.hpp only shows the form in a comment
        text = catalogue.read_text()
        macro = re.search(r'^#define QB_\w+_RECORDS\(BOTH, DICT, TYPED\)((?:.*\\\n)*.*)', text, re.M)
        if not macro:
            sys.exit(f'{catalogue}: no QB_<DOMAIN>_RECORDS macro')
        for kind, first, second in RECORD_LINE.findall(macro.group(1)):
            if (kind == 'BOTH') != bool(second):
                sys.exit(f'{catalogue}: cannot read {kind}({first}, {second})')
            records.append(tuple(name for name in (first, second) if name))
    return records


def main(classes, html):
    html = pathlib.Path(html)
    records = catalogue_records(classes)
    if len(records) < 2:
        sys.exit(f'only {len(records)} records read from the catalogues under {classes}')
    failures = []
    page = (html / 'records.html').read_text() if (html / 'records.html').exists() else ''
    if not page:
        failures.append('records.html: missing or empty')
    # Section headings: <h1><a class="anchor" id="record_..."></a> qb::A and qb::B</h1>
    headings = [re.sub(r'<[^>]+>', '', h).strip()
                for h in re.findall(r'<h1>\s*<a class="anchor" id="record_[^"]*"></a>(.*?)</h1>', page, re.S)]
    if page and len(headings) != len(records):
        failures.append(f'records.html: {len(headings)} record sections, the catalogues have {len(records)} records')
    for names in records:
        expected = ' and '.join('qb::' + name for name in names)
        if page and expected not in headings:
            failures.append(f'records.html: no section "{expected}"')
        for name in names:
            candidates = [html / f'{kind}qb_1_1{name}.html' for kind in ('class', 'struct')]
            own = next((p for p in candidates if p.exists()), None)
            if own is None:
                failures.append(f'{name}: no class page')
            elif '<h2>JSON keys</h2>' not in own.read_text():
                failures.append(f'{own.name}: no JSON keys section')
    for failure in failures:
        print('FAIL', failure)
    print(f'{len(records)} records in the catalogues, {len(headings)} on the records page, {len(failures)} failures')
    return 1 if failures else 0


if __name__ == '__main__':
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2]))
