"""Managed collections in Python, and Python collections in managed code."""

from __future__ import annotations

import unittest

from korvan import probe


class TypedCollections(unittest.TestCase):
    def test_reading_follows_the_list_protocol(self) -> None:
        words = probe.Collections().words
        self.assertEqual((len(words), words[0], words[-1], list(words)),
                         (2, "one", "two", ["one", "two"]))
        self.assertEqual(words[0:2], ["one", "two"])
        self.assertIs(type(words[0:2]), list)
        self.assertIn("two", words)
        self.assertEqual((words.index("two"), words.count("one"), words.length), (1, 1, 2))
        with self.assertRaisesRegex(IndexError, "list index out of range"):
            words[2]
        with self.assertRaisesRegex(TypeError, "list indices must be integers or slices, not str"):
            words["x"]
        with self.assertRaisesRegex(OverflowError, r"the index \(2147483648\) is out of the INT32"):
            words[2**31]

    def test_writing_changes_the_managed_list(self) -> None:
        collections = probe.Collections()
        words = collections.words
        words.append("three")
        words.insert(0, "zero")
        words[1] = "ONE"
        words.remove("two")
        del words[0]
        self.assertEqual(list(collections.words), ["ONE", "three"])
        self.assertEqual(words.pop(), "three")
        words.extend(["a", "b"])
        words.reverse()
        self.assertEqual(words.copy(), ["b", "a", "ONE"])
        words.clear()
        with self.assertRaisesRegex(IndexError, "pop from empty list"):
            words.pop()
        with self.assertRaisesRegex(TypeError, "can't build String from 'int'"):
            words.append(1)
        self.assertEqual(len(words), 0)

    def test_each_element_kind_is_converted(self) -> None:
        collections = probe.Collections()
        self.assertEqual(list(collections.numbers), [1, 2, 3])
        self.assertEqual(list(collections.doubles), [0.5, 1.5])
        self.assertEqual([box.label for box in collections.boxes], ["a", "b"])
        self.assertEqual(list(collections.pairs), [probe.Pair(1.0, 2.0), probe.Pair(3.0, 4.0)])
        self.assertEqual(list(collections.marks), [probe.Options.A, probe.Options.B | probe.Options.C])
        self.assertEqual(list(collections.squares), [1, 4, 9])
        self.assertEqual(list(collections.editable), [9, 8])
        self.assertEqual([list(row) for row in collections.rows], [[1], [2, 3]])
        self.assertEqual(len(collections.bag), 2)
        self.assertFalse(hasattr(collections.numbers, "append"))

    def test_python_collections_stand_in_for_managed_ones(self) -> None:
        collections = probe.Collections
        self.assertEqual(collections.sum_array([1, 2, 3]), 6)
        self.assertEqual(collections.sum_list((0.5, 1.5)), 2.0)
        self.assertEqual(collections.sum_iterable(n for n in (1, 2)), 3)
        self.assertEqual(collections.join_read_only(["a", "b"]), "a+b")
        self.assertEqual(collections.count_boxes([probe.Box(), None]), 1)
        target = [1]
        collections.append_to(target, 2)
        self.assertEqual(target, [1, 2])
        with self.assertRaisesRegex(TypeError, "can't build List value from 'int'"):
            collections.sum_list(3)
        with self.assertRaises(RuntimeError):
            collections.sum_array([1, "two"])

    def test_a_bound_class_that_is_a_collection_behaves_as_one(self) -> None:
        self.assertEqual(list(probe.Countdown(3)), [3, 2, 1])
        numbers = probe.NumberList()
        numbers.append(4)
        numbers.append(5)
        self.assertEqual((len(numbers), numbers[1], list(numbers)), (2, 5, [4, 5]))

    def test_untyped_collections_carry_any_value(self) -> None:
        loose = probe.LooseList()
        for value in (1, "two", None, 2.5, True):
            loose.append(value)
        self.assertEqual(list(loose), [1, "two", None, 2.5, True])
        self.assertEqual(loose.title, "loose")
        self.assertEqual(len(probe.LooseBag()), 3)
        self.assertEqual(list(probe.LooseBag()), ["a", "b", "a"])


if __name__ == "__main__":
    unittest.main()
