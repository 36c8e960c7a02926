#!/usr/bin/env python3
"""Checks the words for people: every key that the code names stands in the English tables, and every
language has every key, with the same placeholders.

  tools/check_words.py                 complains and fails
  tools/check_words.py --missing LANG  the messages that a language lacks, ready to be translated
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / 'resources' / 'translations'
# Wrappers of ZelWord by the table that they name; None: not one table.
CALLS = [
    (re.compile(r'ViewerWord\(\s*"((?:[^"\\]|\\.)*)"'), 'Viewer'),
    (re.compile(r'PrefsWord\(\s*"((?:[^"\\]|\\.)*)"'), 'Preferences'),
    (re.compile(r'ZelWord\(\s*kWordsMenuItems,\s*"((?:[^"\\]|\\.)*)"'), 'MenuItems'),
    (re.compile(r'ZelWord\(\s*kWordsMain,\s*"((?:[^"\\]|\\.)*)"'), 'Localizable'),
    (re.compile(r'ZelWord\(\s*kWordsErrors,\s*"((?:[^"\\]|\\.)*)"'), 'ZELErrors'),
    (re.compile(r'ZelWord\(\s*kWordsMeasurements,\s*"((?:[^"\\]|\\.)*)"'), 'Measurements'),
    (re.compile(r'ZelWord\(\s*kWordsVendor,\s*"((?:[^"\\]|\\.)*)"'), 'VendorStrings_zel'),
    (re.compile(r'ZelWord\(\s*"VendorStrings_zel",\s*"((?:[^"\\]|\\.)*)"'), 'VendorStrings_zel'),
]
# Files whose tables of commands name their titles.
TITLES = {
    'src/app/window/WindowCommands.cpp': re.compile(r'\{(?:C::\w+, k\w+|kTool\w+|ToolScope::\w+), "([^"]+)"(?:, "([^"]+)")?'),
    'src/app/tools/GridCommands.cpp': re.compile(r'(?:Plain|Checked|Turned)\(C::\w+, "([^"]+)"(?:, "([^"]+)")?'),
}


def words_of(path):
    tables = {}
    for context in xml.parse(path).getroot().iter('context'):
        table = tables.setdefault(context.findtext('name'), {})
        for message in context.iter('message'):
            table[message.findtext('source')] = message.findtext('translation') or ''
    return tables


def keys_in_code():
    for path in sorted((ROOT / 'src').rglob('*')):
        if path.suffix not in ('.cpp', '.h'):
            continue
        text = path.read_text(encoding='utf-8')
        for pattern, table in CALLS:
            for key in pattern.findall(text):
                yield path, table, key
    for name, pattern in TITLES.items():
        for groups in pattern.findall((ROOT / name).read_text(encoding='utf-8')):
            for key in groups:
                # A key of the keyboard may follow a single title.
                if key and not re.fullmatch(r'(Ctrl|Shift|Alt)\+.*|F\d+|.|Home|End|Left|Right|Space', key):
                    yield ROOT / name, 'MenuItems', key


def placeholders(text):
    return sorted(re.findall(r'%\d', text))


def faults(english):
    for path, table, key in keys_in_code():
        if key not in english.get(table, {}):
            yield f'{path.relative_to(ROOT)}: "{key}" is not in {table}'
    for path in sorted(FOLDER.glob('zelora_*.ts')):
        words = words_of(path)
        for table, messages in english.items():
            for key, text in messages.items():
                translated = words.get(table, {}).get(key)
                if not translated and text:
                    yield f'{path.name}: {table} lacks "{key}"'
                elif translated and placeholders(translated) != placeholders(text):
                    yield f'{path.name}: {table} "{key}" has other placeholders'
        for table, messages in words.items():
            for key in messages.keys() - english.get(table, {}).keys():
                yield f'{path.name}: {table} has "{key}", which nobody knows'


def print_missing(english, language):
    words = words_of(FOLDER / f'zelora_{language}.ts')
    for table, messages in english.items():
        for key, text in messages.items():
            if key not in words.get(table, {}):
                print(f'{table}\t{key}\t{text}')


def main():
    english = words_of(FOLDER / 'zelora_en.ts')
    if len(sys.argv) == 3 and sys.argv[1] == '--missing':
        print_missing(english, sys.argv[2])
        return 0
    found = list(faults(english))
    print('\n'.join(found))
    print(f'{len(found)} faults in the words')
    return 1 if found else 0


if __name__ == '__main__':
    sys.exit(main())
