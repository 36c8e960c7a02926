#!/usr/bin/env python3
"""Holds `zelora tree --json` of a folder of samples against an independent grouping of the headers
that its expected.tsv lists.

  check_tree.py ZELORA [SAMPLES]     else the folder that ZELORA_SAMPLES names; 77 without

Every file with pixels that is readable and is no report must stand in the tree, under the study,
series and instance that the table names, or be left out as a copy of one that does; a patient's name
must be the one that the table decodes for a file of his; the files of a series of CT, MR or PT are one
sequence. Ends with 1 and a line for each difference.
"""
import collections
import csv
import json
import os
import subprocess
import sys
import tempfile

ONE_SEQUENCE = {'CT', 'MR', 'PT', 'SC'}


def files_of(tree):
    for patient in tree['patients']:
        for study in patient['studies']:
            for series in study['series']:
                for sequence in series['sequences']:
                    for file in sequence['files']:
                        yield patient, study, series, sequence, file


def plain(name):
    """A name without what only pads it: empty components and groups, blanks around components."""
    groups = ['^'.join(part.strip() for part in group.split('^')).rstrip('^')
              for group in name.split('=')]
    return '='.join(groups).rstrip('=')


def has_pixel_data(path):
    with open(path, 'rb') as file:
        content = file.read()
    return b'\xe0\x7f\x10\x00' in content or b'\x7f\xe0\x00\x10' in content


def is_well_left_out(samples, name, reason, rows, shown):
    """May the table's picture `name` be missing from the tree for that reason?"""
    if reason.startswith('copy of '):
        kept = os.path.relpath(reason[len('copy of '):], samples)
        return kept in shown and rows[kept]['instance_uid'] == rows[name]['instance_uid']
    # "none": no decoder found a pixel either.
    return reason == 'no pixel data' and (rows[name]['compare'] == 'none' or
                                          not has_pixel_data(os.path.join(samples, name)))


def main():
    program = sys.argv[1]
    samples = sys.argv[2] if len(sys.argv) > 2 else os.environ.get('ZELORA_SAMPLES')
    if not samples:
        return 77
    samples = os.path.realpath(samples)
    with tempfile.TemporaryDirectory() as home:  # nobody's preferences
        output = subprocess.run([program, 'tree', samples, '--json', '--recursive=on',
                                 '--ignore-dicomdir=on', '--separate-localizers=off'],
                                env=os.environ | {'HOME': home, 'XDG_CONFIG_HOME': home},
                                capture_output=True, check=True).stdout
    tree = json.loads(output)
    rows = {}
    with open(os.path.join(samples, 'expected.tsv'), newline='', encoding='utf-8') as table:
        for row in csv.DictReader(table, delimiter='\t', quoting=csv.QUOTE_NONE):
            rows[row['path']] = row
    faults = []
    shown, sequences = {}, collections.defaultdict(set)
    for patient, study, series, sequence, file in files_of(tree):
        name = os.path.relpath(file['path'], samples)
        shown[name] = (patient, study, series, sequence, file)
        if series['modality'] in ONE_SEQUENCE:
            sequences[study['uid'], series['uid'], series['number']].add(id(sequence))
    left = {os.path.relpath(entry['path'], samples): entry['reason'] for entry in tree['left_out']}

    for name, row in rows.items():
        pictured = row['readable'] == 'y' and row['rows'] not in ('', '0') and row['modality'] != 'SR'
        if name in shown:
            _, study, series, _, file = shown[name]
            for key, got in (('study_uid', study['uid']), ('series_uid', series['uid']),
                             ('instance_uid', file['sop_instance_uid'])):
                if row[key] and row[key] != got:
                    faults.append(f'{name}: {key} {got!r}, the table has {row[key]!r}')
            if row['frames'] and row['readable'] == 'y' and int(row['frames']) != file['frames']:
                faults.append(f'{name}: {file["frames"]} frames, the table has {row["frames"]}')
        elif name not in left:
            faults.append(f'{name}: neither in the tree nor left out')
        elif pictured and not is_well_left_out(samples, name, left[name], rows,
                                                      shown):
            faults.append(f'{name}: left out ({left[name]}), the table has a picture')
    for patient in tree['patients']:
        known = {plain(rows[os.path.relpath(file['path'], samples)]['patient_name'])
                 for owner, *_, file in files_of(tree) if owner is patient}
        if plain(patient['name']) not in known:
            faults.append(f'patient {patient["name"]!r}, the table has {sorted(known)}')
    for key, kept in sequences.items():
        if len(kept) != 1:
            faults.append(f'series {key}: {len(kept)} sequences')
    print('\n'.join(faults))
    print(f'{len(shown)} files in the tree, {len(left)} left out, {len(rows)} rows, '
          f'{len(faults)} differences')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
