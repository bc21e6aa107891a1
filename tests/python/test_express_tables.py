"""The tool that turns EXPRESS schemas into tables, on small schemas."""

from __future__ import annotations

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools" / "express_tables.py"


def table_of(schema: str, name: str = "Small.exp") -> tuple[int, list[str], str]:
    with tempfile.TemporaryDirectory() as folder:
        source = Path(folder, name)
        source.write_text(f"SCHEMA S;\n{schema}\nEND_SCHEMA;\n", encoding="utf-8")
        done = subprocess.run([sys.executable, str(TOOL), str(source), "--out", folder], capture_output=True, text=True,
                              check=False)
        table = source.with_name(f"{source.stem.lower()}.table")
        return done.returncode, table.read_text("utf-8").splitlines() if table.exists() else [], done.stderr


class Tables(unittest.TestCase):
    ROWS = {
        "defined types": ("TYPE IfcLabel = STRING(255);\nEND_TYPE;\nTYPE A = STRING (22) FIXED;\nEND_TYPE;\n"
                          "TYPE N = NUMBER;\nEND_TYPE;",
                          ["type A STRING", "type IfcLabel STRING", "type N NUMBER"]),
        "limits": ("TYPE P = REAL;\n WHERE\n WR1 : SELF > 0;\nEND_TYPE;", ["type P REAL"]),
        "aggregates": ("TYPE T = LIST [3:4] OF INTEGER;\nEND_TYPE;\nTYPE U = ARRAY [1:2] OF\n"
                       " SET [0:?] OF UNIQUE BAG [1:?] OF IfcX;\nEND_TYPE;",
                       ["type T L[3:4]INTEGER", "type U A[1:2]S[0:?]B[1:?]IfcX"]),
        "enumerations": ("TYPE E = ENUMERATION OF\n (B\n ,A,\n NOTDEFINED);\nEND_TYPE;", ["enum E B A NOTDEFINED"]),
        "select types": ("TYPE S = SELECT\n\t(IfcA, IfcB);\nEND_TYPE;", ["select S IfcA IfcB"]),
        "comments": ("(* TYPE X = REAL; END_TYPE; *)\n-- TYPE Y = REAL; END_TYPE;\n"
                     "TYPE Z = (* odd *) REAL; -- that is all\nEND_TYPE;", ["type Z REAL"]),
        "attributes": ("ENTITY IfcA;\n One, Two : IfcLabel;\n Three : OPTIONAL LIST [1:?] OF UNIQUE IfcB;\nEND_ENTITY;",
                       ["entity IfcA", "  One IfcLabel", "  Two IfcLabel", "  Three ? L[1:?]IfcB"]),
        "bases": ("ENTITY IfcA\n ABSTRACT SUPERTYPE OF (ONEOF\n (IfcB, IfcC));\nEND_ENTITY;\nENTITY IfcB\n"
                  " SUBTYPE OF (IfcA);\nEND_ENTITY;\n"
                  "ENTITY IfcC ABSTRACT SUPERTYPE SUBTYPE OF(IfcA);\nEND_ENTITY;",
                  ["entity IfcA abstract", "entity IfcB : IfcA", "entity IfcC : IfcA abstract"]),
        "sections": ("ENTITY IfcA\n SUBTYPE OF (IfcB);\n Own : REAL;\n DERIVE\n SELF\\IfcB.Dim : INTEGER := 3;\n"
                     " Extra : REAL := Own * 2;\n"
                     " INVERSE\n Used : SET [0:?] OF IfcC FOR Part;\n Only : IfcD FOR Whole;\n UNIQUE\n UR1 : Own;\n"
                     " WHERE\n WR1 : Own > 0;\nEND_ENTITY;",
                     ["entity IfcA : IfcB", "  Own REAL", "  * IfcB.Dim", "  < IfcC Part Used S[0:?]IfcC",
                      "  < IfcD Whole Only IfcD"]),
        "rules and functions": ("FUNCTION F (A : REAL) : REAL;\n RETURN (A);\nEND_FUNCTION;\nRULE R FOR (IfcA);\n"
                                " WHERE\n WR1 : TRUE;\nEND_RULE;", []),
    }

    def test_declarations_become_lines(self) -> None:
        for what, (schema, expected) in self.ROWS.items():
            with self.subTest(what):
                code, lines, errors = table_of(schema)
                self.assertEqual((code, lines), (0, ["schema SMALL", *expected]), errors)

    def test_types_are_sorted_before_entities_and_attributes_keep_their_order(self) -> None:
        _, lines, _ = table_of("ENTITY IfcB;\n Z : REAL;\n A : REAL;\nEND_ENTITY;\nENTITY IfcA;\nEND_ENTITY;\n"
                               "TYPE IfcZ = REAL;\nEND_TYPE;")
        self.assertEqual(lines[1:], ["type IfcZ REAL", "entity IfcA", "entity IfcB", "  Z REAL", "  A REAL"])

    def test_what_tables_cannot_state_is_refused(self) -> None:
        for form in ("LIST OF REAL", "GENERIC:x", "LIST [1:?] OF (REAL)"):
            code, lines, errors = table_of(f"TYPE T = {form};\nEND_TYPE;")
            self.assertNotEqual(code, 0, lines)
            self.assertIn("is no type that the tables can state", errors)
            self.assertEqual(lines, [])


if __name__ == "__main__":
    unittest.main()
