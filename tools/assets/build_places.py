#!/usr/bin/python3
"""Builds the place lists of the weather widget from the gazetteer of Debian's libgeonames0.

usage: build_places.py LIBRARY OUT_FOLDER

The library carries a table of about 24,000 towns as a GResource. From it come
  countries.txt, states.txt    one name a line, for the first choice
  international.txt            code|city|country, the world without the United States
  ustates.txt                  code|city|state
  places-coords.txt            code|latitude|longitude of every place above, decimal degrees
The code is the gazetteer's id. Lines end in LF, and the text is plain ASCII: it is read with
whatever code page the user's system has, and in some of them the byte of an accented letter would
swallow the separator behind it.

A place is found again by the first line whose names are parts of the chosen names. So a name that
contains another one has to stand above it (Bathgate above Bath, Nigeria above Niger); apart from
that the order is alphabetical. The build fails when any place would not be found by its own name.
"""
import collections
import heapq
import os
import subprocess
import sys
import unicodedata

from gi.repository import GLib

TABLE = '/com/lomiri/geonames/cities.compiled'
TABLE_TYPE = 'a(sssssssudd)'  # id, city, state code, state, ISO country, country, zone, people, lat, lon
NAMES = os.path.join(os.path.dirname(os.path.abspath(__file__)), 'place_names.tsv')
HOME = 'US'

# Letters that no decomposition leads to a plain one.
PLAIN_LETTERS = str.maketrans({
    'ł': 'l', 'Ł': 'L', 'ı': 'i', 'ø': 'o', 'Ø': 'O', 'ß': 'ss', 'đ': 'd', 'Đ': 'D', 'ð': 'd',
    'Ð': 'D', 'þ': 'th', 'Þ': 'Th', 'æ': 'ae', 'Æ': 'AE', 'œ': 'oe', 'Œ': 'OE', 'ħ': 'h', 'Ħ': 'H',
    'ə': 'a', 'Ə': 'A', 'ǝ': 'a', 'Ǝ': 'A', '’': "'", '‘': "'", 'ʼ': "'", 'ʻ': "'", '–': '-',
    '|': '/', '"': "'"})

Place = collections.namedtuple('Place', 'code city area latitude longitude')
Town = collections.namedtuple('Town', 'code city state iso country people latitude longitude')


def plain(text):
    apart = unicodedata.normalize('NFD', text.translate(PLAIN_LETTERS))
    return ' '.join(''.join(c for c in apart if not unicodedata.combining(c)).split())


def read_corrections():
    corrections = {}
    with open(NAMES, encoding='utf-8') as file:
        for line in file:
            if line.strip() and not line.startswith('#'):
                kind, source, shown = line.rstrip('\n').split('\t')
                corrections[kind, source] = shown
    return corrections


def read_towns(library):
    blob = subprocess.run(['gresource', 'extract', library, TABLE], check=True,
                          capture_output=True).stdout
    table = GLib.Variant.new_from_bytes(GLib.VariantType.new(TABLE_TYPE), GLib.Bytes.new(blob), False)
    corrections = read_corrections()

    def shown(kind, key, name):
        return plain(corrections.get((kind, key), name))

    for code, city, _, state, iso, country, _, people, latitude, longitude in table.unpack():
        town = Town(code, shown('city', code, city), shown('state', state, state), iso,
                    shown('country', country, country), people, latitude, longitude)
        if town.city and all(name.isascii() for name in town[:5]):
            yield town


def containing_first(names):
    """`names` in alphabetical order, except that a name follows all that contain it."""
    names = set(names)
    waits_for = dict.fromkeys(names, 0)
    parts = {}
    for name in names:
        pieces = {name[i:j] for i in range(len(name)) for j in range(i + 1, len(name) + 1)}
        parts[name] = (pieces & names) - {name}
        for part in parts[name]:
            waits_for[part] += 1
    ready = [(name.lower(), name) for name in names if waits_for[name] == 0]
    heapq.heapify(ready)
    ordered = []
    while ready:
        name = heapq.heappop(ready)[1]
        ordered.append(name)
        for part in parts[name]:
            waits_for[part] -= 1
            if waits_for[part] == 0:
                heapq.heappush(ready, (part.lower(), part))
    return ordered


def place_list(towns, area_of):
    """Places in list order; of towns that cannot be told apart the largest stays."""
    count = collections.Counter((town.city, area_of(town)) for town in towns)
    areas = collections.defaultdict(dict)
    for town in sorted(towns, key=lambda town: (-town.people, int(town.code))):
        city, area = town.city, area_of(town)
        if count[city, area] > 1 and town.state not in ('', city, area):
            city = f'{city} ({town.state})'
        place = Place(town.code, city, area, town.latitude, town.longitude)
        areas[area].setdefault(city, place)
    return [areas[area][city] for area in containing_first(areas)
            for city in containing_first(areas[area])]


def check_found(places):
    """Resolves every place by its own names, as the program does."""
    areas = list(dict.fromkeys(place.area for place in places))
    by_area = collections.defaultdict(list)
    for place in places:
        by_area[place.area].append(place)
    for area in areas:
        candidates = [place for part in areas if part in area for place in by_area[part]]
        for wanted in by_area[area]:
            found = next(place for place in candidates if place.city in wanted.city)
            if found is not wanted:
                sys.exit(f'{wanted} would be taken for {found}')


def write(folder, name, lines):
    with open(os.path.join(folder, name), 'w', encoding='ascii', newline='\n') as file:
        file.writelines(line + '\n' for line in lines)


def write_places(folder, list_name, areas_name, places):
    check_found(places)
    write(folder, list_name, (f'{place.code}|{place.city}|{place.area}' for place in places))
    write(folder, areas_name, sorted({place.area for place in places}, key=str.lower))


def main():
    library, folder = sys.argv[1:]
    towns = list(read_towns(library))
    world = place_list([town for town in towns if town.iso != HOME], lambda town: town.country)
    states = place_list([town for town in towns if town.iso == HOME], lambda town: town.state)
    os.makedirs(folder, exist_ok=True)
    write_places(folder, 'international.txt', 'countries.txt', world)
    write_places(folder, 'ustates.txt', 'states.txt', states)
    write(folder, 'places-coords.txt', (f'{place.code}|{place.latitude:.4f}|{place.longitude:.4f}'
                                        for place in world + states))


if __name__ == '__main__':
    main()
