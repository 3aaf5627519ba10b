#!/usr/bin/env python3
"""Makes the demonstration's departures, arrivals and approaches (sids.txt, stars.txt, apps.txt) from its airports.

They are built the way such procedures are built, with every leg code and altitude form of the format, but they are
inventions: not for navigation. Made fixes begin with DM. Run it from the top of the tree; it overwrites the files.
"""
import math
import pathlib

NAVDATA = pathlib.Path("data/root/Velarion/TZ900/Navdata")
NM = 3437.7467707849396
# Airport: magnetic variation as the system's model has it, runway groups of the two directions, exits of the
# departures, entries of the arrivals.
AIRPORTS = {
    "KSEA": (18, ["16L", "16C", "16R"], ["34L", "34C", "34R"], ["ALDER", "EPH"], ["BTG", "YKM"]),
    "KPDX": (17, ["10L", "10R"], ["28L", "28R"], ["BTG", "DSD"], ["EUG", "YKM"]),
    "KSFO": (15, ["28L", "28R"], ["19L"], ["SAC", "AVE"], ["RBL", "AVE"]),
    "KLAX": (13, ["24L", "24R", "25L", "25R"], ["06L", "06R", "07L", "07R"], ["FIM", "PMD"], ["FIM", "PMD"]),
    "KSLC": (13, ["16L", "16R", "17"], ["34L", "34R", "35"], ["MLD", "DTA"], ["BOI", "DTA"]),
    "KDEN": (10, ["34L", "34R", "35L", "35R"], ["16L", "16R", "17L", "17R"], ["HBU", "CYS"], ["EKR", "CYS"]),
    "KLAS": (13, ["25L", "25R"], ["19L", "19R"], ["BLD", "DAG"], ["DAG", "BLD"]),
}


def great_circle(a, b):
    la, lb = math.radians(a[0]), math.radians(b[0])
    d = math.radians(b[1] - a[1])
    cos = math.sin(la) * math.sin(lb) + math.cos(la) * math.cos(lb) * math.cos(d)
    bearing = math.atan2(math.sin(d) * math.cos(lb),
                         math.cos(la) * math.sin(lb) - math.sin(la) * math.cos(lb) * math.cos(d))
    return math.acos(max(-1, min(1, cos))) * NM, math.degrees(bearing) % 360


def project(a, bearing, nm):
    la, lo, b, d = math.radians(a[0]), math.radians(a[1]), math.radians(bearing), nm / NM
    lat = math.asin(math.sin(la) * math.cos(d) + math.cos(la) * math.sin(d) * math.cos(b))
    lon = lo + math.atan2(math.sin(b) * math.sin(d) * math.cos(la), math.cos(d) - math.sin(la) * math.sin(lat))
    return math.degrees(lat), math.degrees(lon)


def read_places():
    places = {}
    for name in ("ints.txt", "navs.txt"):
        for line in (NAVDATA / name).read_text().splitlines():
            fields = line.split()
            if len(fields) >= 4 and not line.startswith(";"):
                places.setdefault(fields[0], (float(fields[2]), float(fields[3])))
    return places


def read_airports():
    airports = {}
    for line in (NAVDATA / "apts.txt").read_text().splitlines():
        fields = line.split()
        if line.startswith(";") or len(fields) < 6:
            continue
        runways = {}
        for token in fields[5:]:
            parts = token.split("_")
            runways[parts[0]] = ((float(parts[2]), float(parts[3])), float(parts[4]), parts[5] != "0")
        airports[fields[0]] = (int(fields[2]), (float(fields[3]), float(fields[4])), runways)
    return airports


class Maker:
    def __init__(self):
        self.places, self.airports, self.made = read_places(), read_airports(), 0
        self.sids, self.stars, self.apps = [], [], []

    def fix(self, point):
        """A made fix."""
        n, self.made = self.made, self.made + 1
        name = "DM" + "".join(chr(65 + n // 26 ** k % 26) for k in (2, 1, 0))
        self.places[name] = point
        return name

    def at(self, name):
        return "%.6f %.6f" % self.places[name]

    def airport(self, icao):
        var, group_a, group_b, exits, entries = AIRPORTS[icao]
        elevation, centre, runways = self.airports[icao]
        for lines in (self.sids, self.stars, self.apps):
            lines.append("[%s]" % icao)
        for n, name in enumerate(exits):
            self.departure(icao, name, n, var, (group_a, group_b), elevation, centre, runways)
        gates = {}
        for group in (group_a, group_b):
            for runway in group:
                if runways[runway][2]:
                    gates[runway] = self.approach(icao, runway, var, elevation, runways)
        for name in entries:
            self.arrival(name, var, gates, elevation, centre)
        if icao == "KPDX":
            self.procedure_turn(var, elevation, runways)

    def departure(self, icao, name, kind, var, groups, elevation, centre, runways):
        procedure = name + "1"
        end = self.places[name]
        self.sids.append("T %s RNAV %s" % (procedure, ",".join(groups[0] + groups[1])))
        first = (elevation // 100 + 15) * 100
        for group in groups:
            threshold, course, _ = runways[group[0]]
            track = round(course) % 360 or 360
            for_all = ",".join(group)
            climbed = project(threshold, track + var, 0.4937 + (first - elevation) / 1200 * 3.1666 + 0.33)
            self.sids.append("%s /T%03d/UA %d %s 0 0" % (procedure, track, first, for_all))
            if kind == 0:  # straight out, then joins the course to the exit
                across = (track + 40) % 360 or 360
                joins = project(climbed, across + var, 9)
                inbound = round(great_circle(joins, end)[1] - var) % 360
                turn = "/RT" if (inbound - across) % 360 < 180 else "/LT"
                if 15 < abs((inbound - across + 180) % 360 - 180) < 120:  # a course that turns back is met too far out
                    self.sids.append("%s /H%03d/IC%03d 4000 %s %s" % (procedure, across, inbound, for_all, self.at(name)))
            else:  # a heading or course until a distance from the field, then vectors
                letter = "H" if group is groups[0] else "C"
                self.sids.append("%s /%s%03d/UD8.0 3000 %s %.6f %.6f" % (procedure, letter, track, for_all, *centre))
                turned = (track + 90) % 360 or 360
                self.sids.append("%s /RT/H%03d/UA 9000 %s 0 0" % (procedure, turned, for_all))
        middle = self.fix(project(centre, great_circle(centre, end)[1], great_circle(centre, end)[0] * 0.7))
        self.sids.append("%s %s 12000+ --- %s" % (procedure, middle, self.at(middle)))
        self.sids.append("%s %s 1600023000B --- %s FO" % (procedure, name, self.at(name)))
        bearing = great_circle(centre, end)[1]
        for side, angle in (("A", -25), ("B", 25)):
            beyond = self.fix(project(end, bearing + angle, 40))
            self.sids.append("%s.%s %s 0 %s %s" % (procedure, beyond, beyond, beyond, self.at(beyond)))
        if kind == 1:
            self.sids.append("* vectors only")
            self.sids.append("T %s9 RADAR %s" % (icao[1:], groups[0][0]))
            track = round(runways[groups[0][0]][1]) % 360 or 360
            self.sids.append("%s9 /T%03d/UA %d --- 0 0" % (icao[1:], track, first))
            self.sids.append("%s9 /H%03d/VT 5000- --- 0 0" % (icao[1:], track))

    def arrival(self, name, var, gates, elevation, centre):
        procedure = name + "2"
        start = self.places[name]
        distance, bearing = great_circle(start, centre)
        self.stars.append("T %s RNAV %s" % (procedure, ",".join(gates)))
        for angle in (-20, 20):  # transitions from further out
            outer = self.fix(project(start, bearing + 180 + angle, 45))
            self.stars.append("%s.%s %s %s 25000+ %s" % (procedure, outer, outer, outer, self.at(outer)))
        self.stars.append("%s --- %s 1700022000B %s" % (procedure, name, self.at(name)))
        for part, token in ((0.45, "14000-"), (0.7, "10000+")):
            on = self.fix(project(start, great_circle(start, centre)[1], distance * part))
            self.stars.append("%s --- %s %s %s" % (procedure, on, token, self.at(on)))
        for runway, gate in gates.items():
            self.stars.append("%s %s %s %d %s" % (procedure, runway, gate, (elevation // 1000 + 6) * 1000, self.at(gate)))

    def approach(self, icao, runway, var, elevation, runways):
        """An ILS with two transitions and a missed approach; gives its initial fix."""
        threshold, course, _ = runways[runway]
        back = (course + var + 180) % 360
        on_final = lambda nm: project(threshold, back, nm)
        level = lambda feet: (elevation + feet) // 100 * 100
        gate = self.fix(project(threshold, back, 17))
        iaf = [self.fix(project(on_final(12), back + angle, 9)) for angle in (-60, 60)]
        middle, final = self.fix(on_final(11)), self.fix(on_final(5.5))
        holding = self.fix(project(threshold, course + var, 16))
        line = lambda fix, role, token, second="-", speed=0, over="": self.apps.append(
            ("%s ILS %s %s %s %s %s %d 0 %s" % (runway, fix, role, token, self.at(fix), second, speed, over)).rstrip())
        for fix in iaf:
            line(fix, fix, "%d+" % level(5000), "IAF", 210)
        line(gate, "IAF", "%d" % level(4500), "-", 210)
        self.apps[-1] = self.apps[-1].replace(" - 210", " %s 210" % gate)
        line(middle, "IAF*", "%d+" % level(3500), "-", 190)
        line(final, "FAF", "%d" % level(1800), "-", 170)
        self.apps.append("%s ILS RW%s MAP %d %.6f %.6f - 140 0 FO" % (runway, runway, elevation + 50, *threshold))
        track = round(course) % 360 or 360
        out = (track + 30) % 360 or 360
        climbed = project(threshold, track + var, (level(2000) - elevation) / 1500 * 3.1666)
        self.apps.append("%s ILS /T%03d/UA MAF %d 0 0 - 0 0" % (runway, track, level(2000)))
        inbound = round(great_circle(project(climbed, out + var, 5), self.places[holding])[1] - var) % 360
        self.apps.append("%s ILS /H%03d/IC%03d MAF 0 %s - 0 0" % (runway, out, inbound, self.at(holding)))
        line(holding, "MAF", "%d" % level(4000))
        line(holding, "MAF", "%d" % level(4000))
        return gate

    def procedure_turn(self, var, elevation, runways):
        """An approach that turns round on its outbound course."""
        threshold, course, _ = runways["10R"]
        inbound = round(course)
        final = self.fix(project(threshold, course + var + 180, 6))
        outer = "DMPTA"  # where the turn begins, out on the same line
        self.places[outer] = project(self.places[final], course + var + 180, 7)
        self.apps += [
            "10R VOR %s IAF 3000 %s - 190 0" % (final, self.at(final)),
            "10R VOR %s --- 2500 %s - 180 0" % (outer, self.at(outer)),
            "10R VOR /RT/H%03d/IC%03d --- 2500 %s - 180 0" % ((inbound + 30) % 360, inbound, self.at(outer)),
            "10R VOR %s FAF 1800 %s - 170 0" % (final, self.at(final)),
            "10R VOR RW10R MAP %d %.6f %.6f - 140 0 FO" % (elevation + 60, *threshold),
            "10R VOR /LT/T%03d/UA MAF 3000 0 0 - 0 0" % ((inbound - 20) % 360),
            "10R VOR BTG MAF 4000 %s - 0 0" % self.at("BTG"),
            "10R VOR BTG MAF 4000 %s - 0 0" % self.at("BTG"),
        ]


def main():
    maker = Maker()
    for icao in AIRPORTS:
        maker.airport(icao)
    head = "; Demonstration procedures, invented: not for navigation. Made by tools/make_demo_procedures.py\n"
    for name, lines in (("sids.txt", maker.sids), ("stars.txt", maker.stars), ("apps.txt", maker.apps)):
        (NAVDATA / name).write_text(head + "\n".join(lines) + "\n")
        print(name, len(lines), "lines")


if __name__ == "__main__":
    main()
