#!/usr/bin/env python3
"""Reads the includes under src/ and fails on one that breaks the floors.

A folder includes itself and folders of lower floors (cmake/floors.txt), nothing else; the plain
folders take no Qt, and no widget appears below its floor or in the command line program.

  check_layers.py [ROOT]     checks a checkout, by default the one this script is in
  check_layers.py --self-test
"""
import pathlib
import re
import sys
import tempfile

INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)')
PLAIN = ('util', 'Qvx2Parser', 'Qvx2Parser/exporter_sources', 'pixels', 'Qvx2VOIBlitter', 'QvxToolkit')
WIDGET_FLOOR = 11
NO_WIDGETS = ('tool',)
QT_HEADER = re.compile(r'^(Qt[A-Z0-9]\w*/)?Q[A-Za-z0-9]+$|^Qt[A-Z]\w*/|^q[a-z]\w*\.h$')
# Classes of Qt Widgets that are used at all are named by one of these endings.
WIDGET = re.compile(
    r'^(QtWidgets(/.*)?|Q\w*(Widget|View|Dialog|Box|Button|BoxLayout|GridLayout|FormLayout|'
    r'StackedLayout|LayoutItem|Slider|Splitter|Application|MainWindow|ToolBar|StatusBar|MenuBar|'
    r'TabBar|ScrollBar|ScrollArea|LineEdit|TextEdit|DateEdit|TimeEdit|Style|StyleOption\w*|'
    r'StyleFactory|StylePainter|StyledItemDelegate|ItemDelegate|ProxyStyle|Completer|Tip)|'
    r'QLabel|QMenu|QFrame|QLayout|QHeaderView|QGraphics\w+|QSystemTrayIcon|QDial|QSizeGrip|'
    r'QProgressBar|QRubberBand|QSplashScreen|QWizard|QWizardPage|QWidgetAction|QSizePolicy|'
    r'QGesture\w*|QCommonStyle)$')
NOT_WIDGETS = {'QCoreApplication', 'QGuiApplication', 'QQuickView', 'QStringView', 'QByteArrayView',
               'QUtf8StringView', 'QAnyStringView'}


def read_floors(text):
    rows = (line.split() for line in text.splitlines() if line and line[0].isdigit())
    return {row[1]: int(row[0]) for row in rows}


def folder_of(path, floors):
    """The module that holds `path` (relative to src/): the longest that fits, or None."""
    parts = path.split('/')[:-1]
    for count in range(len(parts), 0, -1):
        name = '/'.join(parts[:count])
        if name in floors:
            return name
    return None


def fault_of(folder, header, floors):
    """Why `folder` may not include `header`, or None."""
    if QT_HEADER.match(header):
        if folder in PLAIN:
            return 'takes no Qt'
        name = header.rsplit('/', 1)[-1]
        is_widget = name not in NOT_WIDGETS and (WIDGET.match(name) or header.startswith('QtWidgets'))
        if is_widget and (floors[folder] < WIDGET_FLOOR or folder in NO_WIDGETS):
            return 'takes no widgets'
    return None


def own_fault_of(folder, header, floors):
    """The same for a header in quotes that is none of Qt's."""
    if header.endswith(('.moc', '.inc')) and '/' not in header:
        return None  # made by the build
    used = folder_of(header, floors)
    if used is None:
        return 'is in no folder of cmake/floors.txt (includes are written from src/)'
    if used == folder or floors[used] < floors[folder]:
        return None
    way = 'sideways' if floors[used] == floors[folder] else 'upward'
    return 'runs %s: %s is on floor %d, %s on %d' % (way, folder, floors[folder], used, floors[used])


def check(root):
    """One line for each fault."""
    src = root / 'src'
    floors = read_floors((root / 'cmake' / 'floors.txt').read_text(encoding='utf-8'))
    faults = []
    for path in sorted(src.rglob('*')):
        if path.suffix not in ('.h', '.hpp', '.cpp', '.inc') or not path.is_file():
            continue
        relative = path.relative_to(src).as_posix()
        folder = folder_of(relative, floors)
        if folder is None:
            faults.append('src/%s: is in no folder of cmake/floors.txt' % relative)
            continue
        lines = path.read_text(encoding='utf-8', errors='replace').splitlines()
        for number, line in enumerate(lines, 1):
            found = INCLUDE.match(line)
            if not found:
                continue
            header = found.group(1) or found.group(2)
            fault = fault_of(folder, header, floors)
            if found.group(1) and not QT_HEADER.match(header):
                fault = own_fault_of(folder, header, floors)
            if fault:
                faults.append('src/%s:%d: %s %s' % (relative, number, header, fault))
    return faults


# folder of the file, its include line, a word of the fault that must be found (or nothing)
CASES = (
    ('low', '#include "low/b.h"', ''),
    ('mid', '#include "low/b.h"', ''),
    ('low', '#include "mid/b.h"', 'upward'),
    ('mid', '#  include "peer/b.h"', 'sideways'),
    ('mid/inner', '#include "mid/b.h"', ''),
    ('mid', '#include "mid/inner/b.h"', 'upward'),
    ('mid/inner/deeper', '#include "mid/inner/b.h"', ''),  # belongs to mid/inner
    ('mid', '#include "b.h"', 'no folder'),
    ('mid', '#include "nowhere/b.h"', 'no folder'),
    ('mid', '#include "rows.inc"', ''),
    ('stray', '', 'no folder'),
    ('util', '#include <QString>', 'no Qt'),
    ('util', '#include <QtCore/qglobal.h>', 'no Qt'),
    ('util', '#include <vector>', ''),
    ('mid', '#include <QString>', ''),
    ('mid', '#include <QStringView>', ''),
    ('mid', '#include <QPainter>', ''),
    ('mid', '#include <QWidget>', 'no widgets'),
    ('mid', '#include <QtWidgets/QLabel>', 'no widgets'),
    ('mid', '#include "QPushButton"', 'no widgets'),
    ('high', '#include <QMainWindow>', ''),
    ('tool', '#include <QApplication>', 'no widgets'),
    ('tool', '#include <QGuiApplication>', ''),
    ('mid', '// #include "high/b.h"', ''),
)


def self_test():
    floors = '0 util\n0 low\n2 mid\n2 peer\n3 mid/inner\n12 high\n14 tool\n'
    failed = 0
    for folder, line, expected in CASES:
        with tempfile.TemporaryDirectory() as name:
            root = pathlib.Path(name)
            (root / 'cmake').mkdir()
            (root / 'cmake' / 'floors.txt').write_text('# floor folder\n' + floors)
            (root / 'src' / folder).mkdir(parents=True)
            (root / 'src' / folder / 'a.cpp').write_text('#include <cstdint>\n' + line + '\n')
            faults = check(root)
        right = expected in faults[0] if expected and len(faults) == 1 else not expected and not faults
        if not right:
            failed += 1
            print('%s with %s: wanted %r, got %s' % (folder, line, expected, faults))
    print('%d cases, %d failed' % (len(CASES), failed))
    return failed


def main():
    if sys.argv[1:] == ['--self-test']:
        sys.exit(1 if self_test() else 0)
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent)
    faults = check(root)
    for fault in faults:
        print(fault)
    print('%d includes break the floors' % len(faults))
    sys.exit(1 if faults else 0)


if __name__ == '__main__':
    main()
