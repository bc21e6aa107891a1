"""What is written record by record: metafiles, meshes and signatures, read by small readers of the tests' own."""

from __future__ import annotations

import base64
import io
import itertools
import json
import math
import re
import struct
import tempfile
import unittest
from collections import Counter
from pathlib import Path

import cgm
from drawings import EXAMPLES, needs_tools, tool
from korvan import cad
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import (
    Cad2DPoint,
    Cad3DFace,
    Cad3DPoint,
    CadBlockEntity,
    CadCircle,
    CadInsertObject,
    CadLwPolyline,
    CadText,
)
from korvan.cad.imageoptions import (
    CadRasterizationOptions,
    CgmOptions,
    EmfOptions,
    GlbOptions,
    GltfOptions,
    Html5Options,
    ImageOptionsBase,
    ObjOptions,
    PdfDigitalSignatureDetailsCore,
    PdfDocumentOptions,
    PdfOptions,
    StlOptions,
    WmfOptions,
)

DRAWINGS = ("site_plan.dxf", "floor_plan.dxf")
STOCK = 0x80000000


def written(options: ImageOptionsBase, source: str | CadImage = "site_plan.dxf",
            size: tuple[int, int] = (640, 480)) -> bytes:
    if isinstance(options, (EmfOptions, WmfOptions, CgmOptions, Html5Options)):
        raster = CadRasterizationOptions()
        (raster.page_width, raster.page_height) = map(float, size)
        options.vector_rasterization_options = raster
    image = source if isinstance(source, CadImage) else cad.Image.load(str(EXAMPLES / source))
    target = io.BytesIO()
    image.save(target, options)
    return target.getvalue()


class EnhancedMetafiles(unittest.TestCase):
    HEADER, EOF, SAVE, RESTORE, SELECT, BRUSH, FONT, TEXT, PEN = 1, 14, 33, 34, 37, 39, 82, 84, 95
    BEGIN_PATH, END_PATH = 59, 60
    COUNTED = {2: 0, 4: 0, 5: 0}  # records of a bounds rectangle, a count, and that many points

    def records(self, data: bytes) -> list[tuple[int, bytes]]:
        found, at = [], 0
        while at < len(data):
            kind, size = struct.unpack_from("<II", data, at)
            self.assertTrue(size >= 8 and size % 4 == 0 and at + size <= len(data), (kind, size, at))
            found.append((kind, data[at + 8 : at + size]))
            at += size
        return found

    def test_the_head_tells_what_follows(self) -> None:
        for drawing in DRAWINGS:
            for size in ((640, 480), (50, 900)):
                data = written(EmfOptions(), drawing, size)
                found = self.records(data)
                header = data[: struct.unpack_from("<I", data, 4)[0]]
                signature, version, total, count, handles, reserved = struct.unpack_from("<IIIIHH", header, 40)
                self.assertEqual((found[0][0], signature, version), (self.HEADER, 0x464D4520, 0x10000))
                self.assertEqual((total, count, reserved), (len(data), len(found), 0))
                length, offset = struct.unpack_from("<II", header, 60)
                title = header[offset : offset + 2 * length].decode("utf-16-le")
                self.assertTrue(title.startswith("korvan.cad\0") and title.endswith("\0\0"), title)
                self.assertEqual(title.count("\0"), 3)
                self.assertEqual((found[-1][0], found[-1][1]), (self.EOF, struct.pack("<III", 0, 16, 20)))
                self.assertEqual([kind for kind, _ in found].count(self.HEADER), 1)
                _, _, right, bottom = struct.unpack_from("<iiii", header, 24)  # the frame, in 0.01 mm
                self.assertAlmostEqual(right / bottom, size[0] / size[1], 2)
                made = {struct.unpack_from("<I", body)[0] for kind, body in found
                        if kind in (self.BRUSH, self.FONT, self.PEN)}
                self.assertEqual(made, set(range(1, handles)))

    def test_handles_are_made_before_they_are_selected_and_states_are_balanced(self) -> None:
        for as_shapes in (False, True):
            options = EmfOptions()
            options.text_as_shapes = as_shapes
            made: set[int] = set()
            depth, in_path = 0, False
            for kind, body in self.records(written(options, "floor_plan.dxf")):
                number = struct.unpack_from("<I", body)[0] if body else 0
                if kind in (self.BRUSH, self.FONT, self.PEN):
                    self.assertNotIn(number, made)
                    made.add(number)
                elif kind == self.SELECT:
                    self.assertTrue(number in made or number & STOCK, number)
                elif kind in (self.BEGIN_PATH, self.END_PATH):
                    self.assertEqual(in_path, kind == self.END_PATH)
                    in_path = kind == self.BEGIN_PATH
                depth += (kind == self.SAVE) - (kind == self.RESTORE)
                self.assertGreaterEqual(depth, 0)
            self.assertEqual((depth, in_path), (0, False))

    def test_points_and_letters_fill_their_records(self) -> None:
        texts, points = [], 0
        for kind, body in self.records(written(EmfOptions(), "floor_plan.dxf")):
            if kind in self.COUNTED:
                (count,) = struct.unpack_from("<I", body, 16)
                self.assertEqual(len(body), 20 + 8 * count)
                self.assertGreater(count, 0)
                points += count
            elif kind == self.TEXT:
                count, letters, option = struct.unpack_from("<III", body, 36)
                (advances,) = struct.unpack_from("<I", body, 64)
                self.assertEqual((letters, option, advances + 4 * count), (76, 0, len(body) + 8))
                self.assertTrue(all(n >= 0 for n in struct.unpack_from(f"<{count}i", body, advances - 8)))
                texts.append(body[letters - 8 : letters - 8 + 2 * count].decode("utf-16-le"))
        self.assertGreater(points, 10)
        self.assertIn("Kitchen", texts)


class Metafiles(unittest.TestCase):
    PEN, FONT, BRUSH, SELECT, SAVE, RESTORE = 0x02FA, 0x02FB, 0x02FC, 0x012D, 0x001E, 0x0127
    POLYLINE, POLYGONS, TEXT, WINDOW = 0x0325, 0x0538, 0x0A32, 0x020C

    def records(self, data: bytes) -> list[tuple[int, bytes]]:
        found, at = [], 40
        while at < len(data):
            words, kind = struct.unpack_from("<IH", data, at)
            self.assertTrue(words >= 3 and at + 2 * words <= len(data), (words, kind, at))
            found.append((kind, data[at + 6 : at + 2 * words]))
            at += 2 * words
        return found

    def test_the_heads_tell_what_follows(self) -> None:
        for drawing in DRAWINGS:
            data = written(WmfOptions(), drawing)
            found = self.records(data)
            key, handle, left, top, right, bottom, inch, spare, checksum = struct.unpack_from("<IHhhhhHIH", data)
            self.assertEqual((key, handle, left, top, spare), (0x9AC6CDD7, 0, 0, 0, 0))
            total = 0
            for word in struct.unpack_from("<10H", data):
                total ^= word
            self.assertEqual(total, checksum)
            self.assertAlmostEqual(right / bottom, 640 / 480, 2)
            self.assertGreater(inch, 0)
            kind, header, version, words, handles, longest, members = struct.unpack_from("<HHHIHIH", data, 22)
            self.assertEqual((kind, header, version, members), (1, 9, 0x0300, 0))
            self.assertEqual(words * 2, len(data) - 22)
            self.assertEqual(longest, max(3 + len(body) // 2 for _, body in found))
            self.assertEqual((found[-1], [one for one, _ in found].count(0)), ((0, b""), 1))
            made = sum(one in (self.PEN, self.FONT, self.BRUSH) for one, _ in found)
            self.assertLessEqual(handles, made)
            high, wide = next(struct.unpack("<hh", body) for one, body in found if one == self.WINDOW)
            self.assertEqual((abs(wide), abs(high)), (right, bottom))

    def test_counts_fit_and_handles_exist(self) -> None:
        made, depth, drawn = 0, 0, Counter()
        data = written(WmfOptions(), "floor_plan.dxf")
        (handles,) = struct.unpack_from("<H", data, 32)
        for kind, body in self.records(data):
            drawn[kind] += 1
            if kind in (self.PEN, self.FONT, self.BRUSH):
                made += 1
            elif kind == self.SELECT:
                self.assertLess(struct.unpack("<H", body)[0], min(made, handles))
            elif kind == self.POLYLINE:
                (count,) = struct.unpack_from("<h", body)
                self.assertEqual(len(body), 2 + 4 * count)
                self.assertGreater(count, 1)
            elif kind == self.POLYGONS:
                (rings,) = struct.unpack_from("<h", body)
                counts = struct.unpack_from(f"<{rings}h", body, 2)
                self.assertEqual(len(body), 2 + 2 * rings + 4 * sum(counts))
            elif kind == self.TEXT:
                _, _, count, option = struct.unpack_from("<hhhh", body)
                self.assertEqual((len(body), option), (8 + count + count % 2 + 2 * count, 0))
            depth += (kind == self.SAVE) - (kind == self.RESTORE)
            self.assertGreaterEqual(depth, 0)
        self.assertEqual(depth, 0)
        self.assertTrue(drawn[self.POLYLINE] and drawn[self.TEXT])

    def test_characters_beyond_its_code_page_are_shapes(self) -> None:
        for text, words in (("Café", 1), ("Ωmega", 0), ("odd", 1), ("even", 1)):
            drawing = CadImage()
            drawing.styles.get("Standard").primary_font_name = "LiberationSans-Regular.ttf"
            entity = CadText()
            (entity.default_value, entity.text_height) = (text, 10.0)
            drawing.add_entity(entity)
            found = [body for kind, body in self.records(written(WmfOptions(), drawing)) if kind == self.TEXT]
            self.assertEqual(len(found), words, text)
            if found:
                self.assertEqual(found[0][8 : 8 + len(text)].decode("cp1252"), text)


class GraphicsMetafiles(unittest.TestCase):
    def test_elements_stand_in_their_sections_and_fill_their_lengths(self) -> None:
        for drawing in DRAWINGS:
            data = written(CgmOptions(), drawing)
            self.assertEqual(len(data) % 2, 0)
            found = cgm.elements(data)
            kinds = [kind for kind, _ in found]
            self.assertEqual((kinds[0], kinds[1], kinds[-2:]), ((0, 1), (1, 1), [(0, 5), (0, 2)]))
            picture, body = kinds.index((0, 3)), kinds.index((0, 4))
            self.assertTrue(all(kind[0] == 1 for kind in kinds[1:picture]))
            self.assertTrue(all(kind[0] == 2 for kind in kinds[picture + 1 : body]))
            self.assertTrue(all(kind[0] in (3, 4, 5) for kind in kinds[body + 1 : -2]))
            for kind, parameters in found:
                if kind == cgm.LINE:
                    self.assertTrue(len(parameters) % 4 == 0 and len(parameters) >= 8)
                elif kind == cgm.POLYGON_SET:
                    flags = cgm.words(parameters)[2::3]
                    self.assertTrue(len(parameters) % 6 == 0 and flags[-1] in (2, 3) and set(flags) <= {0, 1, 2, 3})
                elif kind == cgm.RESTRICTED_TEXT:
                    self.assertEqual(len(parameters), 11 + parameters[10])

    def test_points_lie_on_the_page_where_nothing_is_cut(self) -> None:
        found = cgm.elements(written(CgmOptions(), "floor_plan.dxf"))
        left, bottom, right, top = cgm.words(dict(found)[cgm.VDC_EXTENT])
        self.assertAlmostEqual((right - left) / (top - bottom), 640 / 480, 2)
        xs = [x for kind, body in found if kind == cgm.LINE for x in cgm.words(body)[::2]]
        ys = [y for kind, body in found if kind == cgm.LINE for y in cgm.words(body)[1::2]]
        self.assertTrue(left <= min(xs) < max(xs) <= right and bottom <= min(ys) < max(ys) <= top)

    def test_the_longest_parameters_are_cut_into_parts(self) -> None:
        line = CadLwPolyline()
        for i in range(20_000):
            line.coordinates.append(Cad2DPoint(float(i), float(i * 7919 % 10_000)))
        drawing = CadImage()
        drawing.add_entity(line)
        lines = [cgm.words(body) for kind, body in cgm.elements(written(CgmOptions(), drawing)) if kind == cgm.LINE]
        self.assertGreater(sum(len(one) // 2 for one in lines), 10_000)
        for one, following in zip(lines, lines[1:], strict=False):
            self.assertEqual(one[-2:], following[:2])  # parts share their ends


class CanvasPages(unittest.TestCase):
    def test_what_a_drawing_says_cannot_leave_its_script(self) -> None:
        for text in ("</script><b>", "it's \\ \"", "\u2028 & <!--", "Ω😀"):
            drawing = CadImage()
            entity = CadText()
            (entity.default_value, entity.text_height) = (text, 10.0)
            drawing.add_entity(entity)
            page = written(Html5Options(), drawing).decode("utf-8")
            self.assertEqual((page.count("<script"), page.count("</script>")), (1, 1), text)
            self.assertNotIn("<b>", page)
            self.assertNotIn("<!--", page.split("<script", 1)[1])
            self.assertNotIn("\u2028", page)


Triangle = tuple[tuple[float, ...], tuple[float, ...], tuple[float, ...]]


def minus(a: tuple[float, ...], b: tuple[float, ...]) -> tuple[float, ...]:
    return tuple(x - y for x, y in zip(a, b, strict=True))


def cross(a: tuple[float, ...], b: tuple[float, ...]) -> tuple[float, ...]:
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def volume(triangles: list[Triangle]) -> float:
    """The volume within a closed surface: positive where its faces look outwards."""
    origin = triangles[0][0]
    moved = [tuple(minus(p, origin) for p in one) for one in triangles]
    return sum(sum(x * y for x, y in zip(a, cross(b, c), strict=True)) for a, b, c in moved) / 6


def read_stl(data: bytes) -> list[tuple[tuple[float, ...], Triangle]]:
    if data.startswith(b"solid"):
        numbers = [tuple(map(float, one.split()[-3:]))
                   for one in data.decode().splitlines() if "normal" in one or "vertex" in one]
        return [(numbers[i], tuple(numbers[i + 1 : i + 4])) for i in range(0, len(numbers), 4)]
    (count,) = struct.unpack_from("<I", data, 80)
    if len(data) != 84 + 50 * count:
        raise AssertionError(f"{count} triangles in {len(data)} bytes")
    rows = [struct.unpack_from("<12fH", data, 84 + 50 * i) for i in range(count)]
    return [(row[:3], (row[3:6], row[6:9], row[9:12])) for row in rows]


def read_obj(data: bytes) -> list[Triangle]:
    rows = [line.split() for line in data.decode().splitlines()]
    points = [tuple(map(float, row[1:4])) for row in rows if row[0] == "v"]
    return [tuple(points[int(i) - 1] for i in row[1:]) for row in rows if row[0] == "f"]


class Gltf:
    def __init__(self, data: bytes) -> None:
        if data[:4] == b"glTF":
            _, version, total = struct.unpack_from("<4sII", data)
            length, kind = struct.unpack_from("<I4s", data, 12)
            size, other = struct.unpack_from("<I4s", data, 20 + length)
            expected = (2, len(data), b"JSON", b"BIN\0")
            if ((version, total, kind, other) != expected or length % 4 or size % 4
                    or 28 + length + size != total):
                raise AssertionError(f"chunks: {version} {total} {kind!r} {length} {other!r} {size}")
            self.root, self.binary = json.loads(data[20 : 20 + length]), data[28 + length :]
        else:
            self.root = json.loads(data)
            header, _, content = self.root["buffers"][0]["uri"].partition(",")
            if not header.startswith("data:application/"):
                raise AssertionError(header)
            self.binary = base64.b64decode(content)

    def values(self, index: int) -> list[tuple[float, ...]]:
        accessor = self.root["accessors"][index]
        view = self.root["bufferViews"][accessor["bufferView"]]
        code = {5121: "B", 5123: "H", 5125: "I", 5126: "f"}[accessor["componentType"]]
        width = {"SCALAR": 1, "VEC3": 3, "VEC4": 4}[accessor["type"]]
        start, size = view.get("byteOffset", 0) + accessor.get("byteOffset", 0), struct.calcsize(f"<{width}{code}")
        end = accessor.get("byteOffset", 0) + size * accessor["count"]
        if start % struct.calcsize(code) or end > view["byteLength"]:
            raise AssertionError(f"accessor {index} is out of its view or not aligned")
        found = [struct.unpack_from(f"<{width}{code}", self.binary, start + i * view.get("byteStride", size))
                 for i in range(accessor["count"])]
        for name, choose in (("min", min), ("max", max)):
            if name in accessor and accessor[name] != [choose(one[i] for one in found) for i in range(width)]:
                raise AssertionError(f"{name} of accessor {index}")
        return found

    def triangles(self) -> list[Triangle]:
        found: list[Triangle] = []

        def walk(index: int, parents: list[list[float]]) -> None:
            node = self.root["nodes"][index]
            x, y, z = node.get("translation", (0, 0, 0))
            maps = [node.get("matrix", [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1]), *parents]  # column by column
            for part in self.root["meshes"][node["mesh"]]["primitives"] if "mesh" in node else ():
                points = self.values(part["attributes"]["POSITION"])
                for m in maps:
                    points = [tuple(m[i] * x + m[4 + i] * y + m[8 + i] * z + m[12 + i] for i in range(3))
                              for x, y, z in points]
                order = [i for i, in self.values(part["indices"])] if "indices" in part else range(len(points))
                mirror = math.prod(self.determinant(m) for m in maps) < 0  # then the other side is the front
                found.extend(tuple(points[i] for i in order[at : at + 3][:: -1 if mirror else 1])
                             for at in range(0, len(order), 3))
            for child in node.get("children", ()):
                walk(child, maps)

        for index in self.root["scenes"][0]["nodes"]:
            walk(index, [])
        return found

    @staticmethod
    def determinant(m: list[float]) -> float:
        return sum(a * b for a, b in zip(cross(tuple(m[0:3]), tuple(m[4:7])), m[8:11], strict=True))


class Meshes(unittest.TestCase):
    @staticmethod
    def drums() -> dict[str, tuple[CadImage, float]]:
        """Drums, each upright or turned, and their height with sign."""
        made = {}
        rows = (("up", 3.0, 1.0, 1.0), ("down", -3.0, 1.0, 1.0), ("turned", 3.0, -1.0, 1.0),
                ("mirrored", 3.0, 1.0, -1.0), ("all", -3.0, -1.0, -1.0))
        for name, height, axis, scale in rows:
            drum = CadCircle()
            (drum.center_point, drum.radius, drum.thickness) = (Cad3DPoint(10.0, 20.0, 5.0), 2.0, height)
            drum.extrusion_direction = Cad3DPoint(0.0, 0.0, axis)
            drawing = CadImage()
            if scale == 1.0:
                drawing.add_entity(drum)
            else:
                block = CadBlockEntity()
                block.name = "drum"
                block.entities.append(drum)
                drawing.block_entities.add(block)
                insert = CadInsertObject()
                (insert.name, insert.scale_x) = ("drum", scale)
                drawing.add_entity(insert)
            made[name] = (drawing, height)
        return made

    def test_closed_bodies_look_outwards_whatever_their_direction(self) -> None:
        for name, (drawing, _) in self.drums().items():
            text = StlOptions()
            text.binary = False
            bodies = {
                "stl": [one for _, one in read_stl(written(StlOptions(), drawing))],
                "stl words": [one for _, one in read_stl(written(text, drawing))],
                "obj": read_obj(written(ObjOptions(), drawing)),
                "glb": Gltf(written(GlbOptions(), drawing)).triangles(),
                "gltf": Gltf(written(GltfOptions(), drawing)).triangles(),
            }
            for form, triangles in bodies.items():
                with self.subTest(name, form=form):
                    unit = 1e-9 if form.startswith("gl") else 1.0
                    self.assertAlmostEqual(volume(triangles) / unit / (math.pi * 4 * 3), 1, 1)
                    edges = Counter((self.place(a, unit), self.place(b, unit)) for one in triangles
                                    for a, b in zip(one, one[1:] + one[:1], strict=True))
                    self.assertTrue(all(edges[(b, a)] == count for (a, b), count in edges.items()), "a gap")

    @staticmethod
    def place(point: tuple[float, ...], unit: float) -> tuple[int, ...]:
        size = 1000 if unit == 1.0 else 1_000_000
        return tuple(round(x * size) for x in point)

    def test_walls_of_closed_lines_look_outwards_whichever_way_they_run(self) -> None:
        square = [(10.0, 10.0), (14.0, 10.0), (14.0, 14.0), (10.0, 14.0)]
        for corners, height in itertools.product((square, square[::-1]), (2.0, -2.0)):
            fence = CadLwPolyline()
            for x, y in corners:
                fence.coordinates.append(Cad2DPoint(x, y))
            fence.flag = type(fence.flag).CLOSED
            fence.thickness = height
            drawing = CadImage()
            drawing.add_entity(fence)
            faces = read_stl(written(StlOptions(), drawing))
            self.assertEqual(len(faces), 8)
            for normal, triangle in faces:
                middle = [sum(p[i] for p in triangle) / 3 - 12.0 for i in range(2)]
                self.assertGreater(normal[0] * middle[0] + normal[1] * middle[1], 1.9)
                self.assertEqual({p[2] for p in triangle}, {0.0, height})

    def test_normals_stand_on_their_faces(self) -> None:
        for name, (drawing, _) in self.drums().items():
            for normal, (a, b, c) in read_stl(written(StlOptions(), drawing)):
                across = cross(minus(b, a), minus(c, a))
                length = math.sqrt(sum(x * x for x in across))
                for x, y in zip(normal, across, strict=True):
                    self.assertAlmostEqual(x, y / length, 3, name)

    def test_metres_are_counted_whatever_the_unit_of_the_drawing(self) -> None:
        for unit, metres in ((6, 1.0), (4, 0.001), (1, 0.0254), (2, 0.3048), (7, 1000.0)):  # as $INSUNITS counts them
            drawing, _ = self.drums()["up"]
            drawing.header.ins_units = unit
            heights = [y for one in Gltf(written(GlbOptions(), drawing)).triangles() for _, y, _ in one]
            self.assertAlmostEqual((max(heights) - min(heights)) / metres, 3.0, 3, unit)
            self.assertAlmostEqual(min(heights) / metres, 5.0, 3, unit)
            lengths = [z for _, one in read_stl(written(StlOptions(), drawing)) for _, _, z in one]
            self.assertAlmostEqual(max(lengths) - min(lengths), 3.0, 3)

    def test_indices_are_within_and_every_part_of_the_buffer_is_described(self) -> None:
        for options in (GlbOptions(), GltfOptions()):
            model = Gltf(written(options, self.drums()["up"][0]))
            self.assertEqual(model.root["asset"]["version"], "2.0")
            self.assertLessEqual(model.root["buffers"][0]["byteLength"], len(model.binary))
            for mesh in model.root["meshes"]:
                for part in mesh["primitives"]:
                    points = model.values(part["attributes"]["POSITION"])
                    self.assertIn("min", model.root["accessors"][part["attributes"]["POSITION"]])
                    self.assertLess(max(i for i, in model.values(part["indices"])), len(points))
                    self.assertLess(part["material"], len(model.root["materials"]))
                    for x, y, z in model.values(part["attributes"]["NORMAL"]) if "NORMAL" in part["attributes"] else ():
                        self.assertAlmostEqual(math.hypot(x, y, z), 1, 4)

    def test_faces_of_four_corners_are_two_triangles_and_flat_ones_none(self) -> None:
        corners = [(0.0, 0.0, 0.0), (2.0, 0.0, 0.0), (2.0, 3.0, 0.0), (0.0, 3.0, 0.0)]
        for used, count in (((0, 1, 2, 3), 2), ((0, 1, 2, 2), 1), ((0, 1, 1, 1), 0)):
            face = Cad3DFace()
            for name, i in zip(("first_point", "second_point", "third_point", "fourth_point"), used, strict=True):
                setattr(face, name, Cad3DPoint(*corners[i]))
            drawing = CadImage()
            drawing.add_entity(face)
            if count == 0:
                with self.assertRaisesRegex(RuntimeError, "no faces"):
                    written(StlOptions(), drawing)
                continue
            triangles = read_stl(written(StlOptions(), drawing))
            self.assertEqual(len(triangles), count)
            area = sum(math.hypot(*cross(minus(b, a), minus(c, a))) / 2 for _, (a, b, c) in triangles)
            self.assertAlmostEqual(area, 3.0 * count)


@needs_tools("openssl", "pdfsig")
class Signatures(unittest.TestCase):
    @classmethod
    def setUpClass(cls) -> None:
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        key, cert, cls.pfx = (str(cls.folder / name) for name in ("key.pem", "cert.pem", "own.pfx"))
        tool("openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "9", "-subj", "/CN=Own", "-keyout",
             key, "-out", cert)
        tool("openssl", "pkcs12", "-export", "-inkey", key, "-in", cert, "-passout", "pass:open", "-out", cls.pfx)

    def signed(self, password: str = "open", pfx: str | bytes | None = None) -> bytes:
        options = PdfOptions()
        options.core_pdf_options = PdfDocumentOptions()
        options.core_pdf_options.digital_signature_details = PdfDigitalSignatureDetailsCore(pfx or self.pfx, password)
        return written(options)

    def report(self, data: bytes) -> str:
        path = self.folder / "page.pdf"
        path.write_bytes(data)
        return tool("pdfsig", "-nocert", str(path))

    def test_all_but_the_signature_is_signed(self) -> None:
        data = self.signed()
        found = re.search(rb"/ByteRange\s*\[\s*(\d+)\s+(\d+)\s+(\d+)\s+(\d+)", data)
        start, length, behind, rest = map(int, found.groups())
        self.assertEqual((start, behind + rest), (0, len(data)))
        self.assertRegex(data[length:behind], rb"^<[0-9A-Fa-f]+>$")
        self.assertIn("Signature is Valid", self.report(data))

    def test_a_changed_byte_is_noticed_wherever_it_is(self) -> None:
        data = self.signed()
        stream = data.index(b"stream")
        for place in (data.index(b"%", 8) + 1, stream + 40, len(data) - 3):
            changed = bytearray(data)
            changed[place] ^= 1
            with self.subTest(place):
                try:
                    report = self.report(bytes(changed))
                except AssertionError:
                    continue  # no document any more
                self.assertNotIn("Signature is Valid", report)

    def test_wrong_passwords_and_files_are_named(self) -> None:
        for password, pfx in (("guess", None), ("open", b"nothing"), ("open", str(self.folder / "nowhere.pfx"))):
            with self.assertRaises(RuntimeError):
                self.signed(password, pfx)


if __name__ == "__main__":
    unittest.main()
