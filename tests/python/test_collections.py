"""Managed collections in Python, and Python collections in managed code."""

from __future__ import annotations

import datetime as dt
import io
import unittest
from collections.abc import Callable, Iterable
from typing import Any

from korvan import probe

ITEMS = [3, 1, 2, 5, 3]


def array() -> Any:
    collections = probe.Collections()
    collections.numbers = ITEMS
    return collections.numbers


def any_array() -> Any:
    collections = probe.LooseCollections()
    collections.fixed = ITEMS
    return collections.fixed


def filled(make: Callable[[], Any]) -> Callable[[], Any]:
    def filled_one() -> Any:
        made = make()
        made.clear()
        made.extend(ITEMS)
        return made

    return filled_one


ARRAYS = {"T[]": array, "Array": any_array}
LISTS = {
    "List<T>": filled(lambda: probe.Collections().counts),
    "IList<T>": filled(lambda: probe.Collections().editable),
    "class: IList<T>": filled(probe.NumberList),
    "class: IList": filled(probe.LooseList),
    "ArrayList": filled(lambda: probe.LooseCollections().growing),
    "CollectionBase": filled(lambda: probe.LooseCollections().based),
}

# What a list of Python's does alike, down to the class of an error.
READING: list[Callable[[Any], Any]] = [
    len,
    list,
    lambda a: (a[0], a[-1], a[4], a[-5]),
    lambda a: a[5],
    lambda a: a[-6],
    lambda a: [a[1:3], a[::2], a[::-1], a[3:1], a[-2:], a[:100], a[4:0:-2], a[::100]],
    lambda a: a[::0],
    lambda a: a["x"],
    lambda a: (a + [9], a + []),
    lambda a: (a * 2, 2 * a, a * 0, a * -1),
    lambda a: (a.copy(), a.count(3), a.count(9), 3 in a, 9 in a),
    lambda a: (a.index(3), a.index(3, 1), a.index(3, -1), a.index(2, 0, 3)),
    lambda a: a.index(3, 1, 4),
    lambda a: a.index(9),
    lambda a: (list(reversed(a)), sorted(a), sum(a), min(a), max(a), list(zip(a, a)), [*a], bool(a)),
    lambda a: [a[-2**70 : 2**70], a[2**70:], a[::2**70], a[:: -(2**70)], a[2**70 :: -1]],
    lambda a: a[2**70],
    lambda a: (a[True], a[slice(None, None, None)]),
    *(
        lambda a, misuse=misuse: misuse(a)
        for misuse in (
            lambda a: a[1.0], lambda a: a[None], lambda a: a["x":], lambda a: a[0, 1], lambda a: a.index(),
            lambda a: a.index(3, None), lambda a: a.index(3, 1, 2, 3), lambda a: a.count(), lambda a: a.count(1, 2),
            lambda a: a.copy(1), lambda a: a * "x", lambda a: a * 1.0, lambda a: a * a, lambda a: a * 2**70,
        )
    ),
]
WRITING: list[Callable[[Any], Any]] = [
    lambda a: a.__setitem__(1, 7),
    lambda a: a.__setitem__(-1, 7),
    lambda a: a.__setitem__(5, 7),
    lambda a: a.__setitem__(slice(None, None, 2), [7, 8, 9]),
    lambda a: a.__setitem__(slice(3, 0, -1), (7, 8, 9)),
    lambda a: a.__setitem__(slice(1, 3), range(7, 9)),
    lambda a: a.__setitem__(slice(0, None, 2), [1]),
    lambda a: a.sort(),
    lambda a: a.sort(key=None, reverse=True),
    lambda a: a.reverse(),
    lambda a: a.__setitem__(slice(None), a),
    lambda a: a.__setitem__(slice(None, None, -1), a),
    lambda a: a.__setitem__(slice(5, 5), []),
    lambda a: a.__setitem__(slice(None, None, 2**70), [7]),
    lambda a: a.sort(reverse="yes"),
    *(
        lambda a, misuse=misuse: misuse(a)
        for misuse in (
            lambda a: a.__setitem__(None, 1), lambda a: a.__setitem__(1.0, 1), lambda a: a.__setitem__(2**70, 1),
            lambda a: a.__setitem__(slice(None, None, 0), []), lambda a: a.__setitem__(slice("x", None), []),
            lambda a: a.__setitem__(slice(None, None, 2), 5), lambda a: a.sort(up=True),
            lambda a: a.reverse(1),
        )
    ),
]


def breaking_off() -> Iterable[int]:
    yield from (7, 8)
    raise KeyError("broken off")


GROWING: list[Callable[[Any], Any]] = [
    lambda a: a.append(7),
    lambda a: [a.insert(i, 7) for i in (0, 2, -1, 100, -100)],
    lambda a: a.extend([7, 8]),
    lambda a: a.extend((7, 8)),
    lambda a: a.extend(range(3)),
    lambda a: a.extend(n for n in (7, 8)),
    lambda a: a.extend({7: 1}),
    lambda a: a.extend(a),
    lambda a: a.__iadd__([7]) is a,
    lambda a: a.__imul__(3) is a,
    lambda a: a.__imul__(-1) is a,
    lambda a: [a.pop(), a.pop(0), a.pop(-2)],
    lambda a: a.pop(5),
    lambda a: (a.clear(), a.pop()),
    lambda a: a.remove(3),
    lambda a: a.remove(9),
    lambda a: a.__imul__(0) is a,
    lambda a: a.extend(breaking_off()),
    lambda a: a.__iadd__(breaking_off()),
    lambda a: (a.insert(True, 7), a.insert(-1, 7)),
    *(
        lambda a, misuse=misuse: misuse(a)
        for misuse in (
            lambda a: a.insert(), lambda a: a.insert(0), lambda a: a.insert("x", 1), lambda a: a.insert(0, 1, 2),
            lambda a: a.append(), lambda a: a.append(1, 2), lambda a: a.extend(), lambda a: a.pop("x"),
            lambda a: a.pop(0, 1), lambda a: a.pop(index=0), lambda a: a.clear(1), lambda a: a.remove(),
            lambda a: a.__imul__("x"), lambda a: a.__delitem__(None), lambda a: a.__delitem__(1.0),
            lambda a: a.__delitem__(2**70), lambda a: a.__delitem__(slice("x", None)),
        )
    ),
    lambda a: a.__delitem__(slice(None, None, 2**70)),
    lambda a: a.__delitem__(slice(-2**70, 2**70)),
    lambda a: a.__delitem__(1),
    lambda a: a.__delitem__(-6),
    *(
        lambda a, key=key: a.__delitem__(key)
        for key in (slice(1, 3), slice(None, None, 2), slice(3, 0, -1), slice(4, None, -2),
                    slice(5, 5), slice(None), slice(0, 1, 9))
    ),
]


def outcome(operation: Callable[[Any], Any], target: Any) -> tuple[Any, list[Any]]:
    """The result or the error's class, and the items afterwards."""
    try:
        result = operation(target)
    except Exception as error:
        result = type(error)
    return (None if result is target else result), list(target)


class ListProtocol(unittest.TestCase):
    def check(self, makers: dict[str, Callable[[], Any]],
              operations: Iterable[Callable[[Any], Any]]) -> None:
        for number, operation in enumerate(operations):
            expected = outcome(operation, list(ITEMS))
            for name, make in makers.items():
                with self.subTest(name=name, operation=number):
                    self.assertEqual(outcome(operation, make()), expected)

    def test_all_read_as_a_list(self) -> None:
        self.check({**ARRAYS, **LISTS}, READING)

    def test_all_replace_items_as_a_list(self) -> None:
        self.check({**ARRAYS, **LISTS}, WRITING)

    def test_lists_grow_and_shrink_as_a_list(self) -> None:
        self.check(LISTS, GROWING)

    def test_lists_differ_where_they_mean_to(self) -> None:
        for name, make in LISTS.items():
            with self.subTest(name=name):
                items = make()
                with self.assertRaisesRegex(ValueError, "size 1 to extended slice of size 2"):
                    items[1:3] = [7]
                with self.assertRaisesRegex(TypeError, "must assign iterable to extended slice"):
                    items[1:3] = (n for n in (7, 8))
                with self.assertRaisesRegex(ValueError, "custom sorting key is not supported"):
                    items.sort(key=len)
                with self.assertRaisesRegex(ValueError, "argument must be iterable or sequence"):
                    items + 1
                with self.assertRaisesRegex(ValueError, "argument must be iterable or sequence"):
                    items.extend(1)
                self.assertEqual(list(items), ITEMS)
                self.assertEqual(items.pop(None), 3)
                self.assertEqual([items + other for other in ((7,), range(7, 8), {7: 1})],
                                 [[*items, 7]] * 3)

    def test_a_change_under_a_walk_is_told(self) -> None:
        for name, make in LISTS.items():
            with self.subTest(name=name):
                items = make()
                walk = iter(items)
                self.assertEqual(next(walk), ITEMS[0])
                items.append(7)
                with self.assertRaisesRegex(RuntimeError, "Collection was modified"):
                    next(walk)
                self.assertEqual(list(items), [*ITEMS, 7])

    def test_a_walk_over_objects_gives_each_once_and_tells_a_change(self) -> None:
        boxes = probe.Collections().boxes
        boxes.clear()
        for at in range(20):
            boxes.append(probe.Box(str(at)))
        self.assertEqual([box.label for box in boxes], [str(at) for at in range(20)])
        walk = iter(boxes)
        kept = [next(walk) for _ in range(18)]
        boxes.append(None)
        with self.assertRaisesRegex(RuntimeError, "Collection was modified"):
            next(walk)
        self.assertEqual([box.label for box in kept], [str(at) for at in range(18)])
        self.assertIsNone(list(boxes)[-1])

    def test_indices_have_32_bits(self) -> None:
        words = r"the index \(2147483648\) is out of the INT32 range"
        items = LISTS["List<T>"]()
        for operation in (lambda: items[2**31], lambda: items.insert(2**31, 1),
                          lambda: items.pop(2**31), lambda: items.index(1, 2**31),
                          lambda: items.index(1, 0, 2**31), lambda: items.__delitem__(2**31)):
            with self.assertRaisesRegex(OverflowError, words):
                operation()
        with self.assertRaisesRegex(OverflowError, r"the value of 'count' \(2147483648\) is out"):
            items *= 2**31
        # The element is read first.
        with self.assertRaisesRegex(TypeError, "integer argument expected, got 'str'"):
            items.insert(2**31, "x")
        with self.assertRaisesRegex(IndexError, "cannot fit 'int' into an index-sized integer"):
            items[2**70]

    def test_a_wrapper_is_taken_whole_or_item_by_item(self) -> None:
        items = LISTS["List<T>"]()
        items.extend(LISTS["ArrayList"]())
        items[:5] = LISTS["CollectionBase"]()
        items += ARRAYS["T[]"]()
        self.assertEqual(list(items), ITEMS * 3)
        with self.assertRaisesRegex(TypeError, "integer argument expected"):
            items.extend(probe.Collections().words)
        with self.assertRaisesRegex(TypeError, "integer argument expected"):
            items[:2] = probe.Collections().words
        self.assertEqual(list(items), ITEMS * 3)
        # The runtime would take an array of uint for one of int.
        for collection in (items, LISTS["IList<T>"]()):
            with self.assertRaises(OverflowError):
                collection.extend(probe.Collections().unsigned)
        # What fits is appended up to what does not, as from a Python list.
        mixed = probe.LooseList()
        mixed.extend([8, "two"])
        with self.assertRaisesRegex(TypeError, "integer argument expected"):
            items.extend(mixed)
        self.assertEqual(list(items), ITEMS * 3 + [8])

    def test_slices_are_deleted_from_the_highest_index_down(self) -> None:
        watched = filled(probe.WatchedList)()
        del watched[::2]
        self.assertEqual((watched.log, list(watched)), ("-4-2-0", [1, 5]))

    def test_an_array_keeps_its_length(self) -> None:
        for name, make in ARRAYS.items():
            with self.subTest(name=name):
                items = make()
                for key in (0, 100, slice(0, 1), slice(100, 200)):
                    with self.assertRaisesRegex(ValueError, "elements removing not supported"):
                        del items[key]
                for method in ("append", "insert", "extend", "remove", "pop", "clear"):
                    self.assertFalse(hasattr(items, method))
                items += [1]
                self.assertEqual((type(items), items), (list, [*ITEMS, 1]))
                items = make()
                items *= 2
                self.assertEqual((type(items), items), (list, ITEMS * 2))


class CountedCollections(unittest.TestCase):
    def test_they_are_walked_as_they_have_no_index(self) -> None:
        for name, bag in (("IReadOnlyCollection<T>", probe.Collections().bag),
                          ("ReadOnlyCollectionBase", probe.LooseCollections().sealed),
                          ("class: ICollection", probe.LooseBag()),
                          ("ICollection<T>", probe.Collections().names)):
            with self.subTest(name=name):
                items = list(bag)
                self.assertEqual((bag + items, bag * 2, bag.copy()),
                                 (items + items, items * 2, items))
                self.assertEqual((len(bag), bag.length, bag.count(items[0])),
                                 (len(items), len(items), items.count(items[0])))
                with self.assertRaises(TypeError):
                    bag[0]
                with self.assertRaisesRegex(ValueError, "argument must be iterable or sequence"):
                    bag + 1

    def test_iterators_are_disposed_and_apart(self) -> None:
        words = probe.Collections().words
        with iter(words) as first:
            self.assertIs(iter(first), first)
            self.assertEqual((next(first), next(iter(words)), next(first)), ("one", "one", "two"))
            with self.assertRaises(StopIteration):
                next(first)

    def test_a_false_length_is_found_out(self) -> None:
        lying = probe.LooseCollections().lying
        for operation in (lying.copy, lambda: lying + [], lambda: lying * 2):
            with self.assertRaisesRegex(ValueError, "argument must be iterable or sequence"):
                operation()

    def test_a_typed_collection_grows(self) -> None:
        names = probe.Collections().names
        names += ("y", "z")
        names.extend(probe.Collections().words)
        self.assertEqual(sorted(names), ["one", "two", "x", "y", "z"])


class FrameworkWrappers(unittest.TestCase):
    def test_each_has_its_interfaces_and_no_python_base(self) -> None:
        holder = probe.LooseCollections()
        walk, count, index = "_IterableWrapper", "_IColWrapper", "_IListWrapper"
        for name, wrapper, interfaces in (
            ("fixed", "_ArrayWrapper", {walk, count, index}),
            ("growing", "_ArrListWrapper", {walk, count, index}),
            ("based", "_ColBaseWrapper", {walk, count, index}),
            ("sealed", "_RoColBaseWrapper", {walk, count}),
        ):
            kind = type(getattr(holder, name))
            self.assertEqual((kind.__name__, kind.__bases__), (wrapper, (object,)))
            for marker in ("_additional_interfaces", "_implicit_interfaces"):
                self.assertEqual({each.__name__ for each in getattr(kind, marker)}, interfaces)
            with self.assertRaisesRegex(TypeError, "type has no available constructor"):
                kind()
        self.assertEqual(list(vars(probe._wrpgen._interop))[-11:], [
            "_IDisposableWrapper", "_IterWrapper", walk, count, index, "_RoColBaseWrapper",
            "_ColBaseWrapper", "_ArrayWrapper", "_ArrListWrapper", "_ShlBufferView",
            "_StreamWrapper"])
        self.assertIs(type(array()).__base__, type(holder.fixed))

    def test_casts_ask_the_managed_object(self) -> None:
        growing = probe.LooseCollections().growing
        kind = type(growing)
        loose = probe.LooseList()
        self.assertEqual((kind._is_assignable(growing), kind._is_assignable(loose),
                          kind._is_assignable(1)), (True, False, False))
        for cast in (kind._cast_to, kind._cast_as):
            self.assertEqual(cast(growing).value, growing)
            self.assertFalse(cast(loose))
        self.assertIs(type(kind._reinterpret_obj(growing)), kind)
        as_list = probe._wrpgen._interop._IListWrapper._cast_to(growing).value
        as_list.append(9)
        self.assertEqual(growing[-1], 9)

    def test_items_that_are_collections_keep_their_kind(self) -> None:
        holder = probe.LooseCollections()
        outer = probe.LooseList()
        outer.extend([holder.growing, array(), holder.based])
        self.assertEqual([type(item).__name__ for item in outer],
                         ["_ArrListWrapper", "_ArrayWrapper", "_IListWrapper"])

    def test_parameters_take_wrappers_lists_and_sequences(self) -> None:
        holder = probe.LooseCollections()
        for name in ("fixed", "growing"):
            for value in ([1, 2], (1, 2), range(1, 3)):
                setattr(holder, name, value)
                self.assertEqual(list(getattr(holder, name)), [1, 2])
            setattr(holder, name, None)
            self.assertIsNone(getattr(holder, name))
        holder.fixed = array()
        self.assertEqual(list(holder.fixed), ITEMS)
        for name, what in (("fixed", "Array"), ("growing", "ArrayList"),
                           ("based", "CollectionBase"), ("sealed", "ReadOnlyCollectionBase")):
            for value in (5, iter([]), probe.LooseList(), probe.Pair(1.0, 2.0)):
                with self.assertRaisesRegex(TypeError, f"can't build {what} value from"):
                    setattr(holder, name, value)
        with self.assertRaisesRegex(Exception, "can't stand in for CollectionBase"):
            holder.based = [1]


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

    def test_an_item_is_refused_where_it_is_read_in_its_converters_words(self) -> None:
        collections = probe.Collections
        for call, words in (
            (lambda: collections.sum_array([1, "two"]), "integer argument expected, got 'str'"),
            (lambda: collections.sum_array((1, 2**31)), "out of the INT32 range"),
            (lambda: collections.sum_list([0.5, 1]), "numeric argument expected, got 'int'"),
            (lambda: collections.sum_iterable(iter([1, None])), "integer argument expected, got 'NoneType'"),
            (lambda: collections.count_boxes([probe.Box(), "x"]), "can't build Box value from 'str'"),
            (lambda: collections.join_read_only(["a", 1]), "can't build String from 'int'"),
            (lambda: collections.sum_table([[1], 2]), "can't build IEnumerable value from 'int'"),
        ):
            with self.subTest(words), self.assertRaisesRegex(RuntimeError, words):
                call()

    def test_managed_code_changes_a_python_list_through_typed_slots(self) -> None:
        words = ["one", "two"]
        self.assertTrue(probe.Collections.move(words, "one", "three"))
        self.assertFalse(probe.Collections.move(words, "none", "four"))
        self.assertEqual(words, ["two", "three", "four"])
        boxes = [probe.Box("a")]
        self.assertEqual(probe.Collections.edit(boxes), "2 2 True False")
        self.assertEqual([box.label for box in boxes], ["new", "set"])
        self.assertEqual(probe.Collections.place((4, 5, 6), 6), 2)
        self.assertEqual(probe.Collections.place([4, 5], 6), -1)
        for fixed in (("a",), {"a"}, {"a": 1}):
            with self.assertRaisesRegex(RuntimeError, "no list can't be changed"):
                probe.Collections.move(fixed, "a", "b")

    def test_a_list_is_walked_as_python_would_when_it_changes(self) -> None:
        class Zone(dt.tzinfo):
            """Runs code while an item is converted."""

            def __init__(self, change: Callable[[], object]) -> None:
                self.change = change

            def utcoffset(self, when: object) -> dt.timedelta:
                self.change()
                return dt.timedelta(0)

        shrinking: list[object] = [dt.datetime(2024, 1, 1, tzinfo=Zone(lambda: shrinking.clear())), None]
        collections = probe.Collections()
        collections.moments = shrinking
        self.assertEqual((len(collections.moments), shrinking), (1, []))
        growing: list[object] = [dt.datetime(2024, 1, 1, tzinfo=Zone(
            lambda: len(growing) < 5 and growing.append(dt.date(2024, 1, 2))))]
        collections.moments = growing
        self.assertEqual(len(collections.moments), 2)
        growing.clear()  # the collector does not see cycles through a datetime

        class Lazy:
            """A sequence with fewer items than it says."""

            def __len__(self) -> int:
                return 9

            def __getitem__(self, index: int) -> int:
                if index == 3:
                    raise IndexError(index)
                return index

        self.assertEqual(probe.Collections.sum_array(Lazy()), 3)

    def test_collections_and_streams_are_elements(self) -> None:
        collections = probe.Collections()
        self.assertEqual([list(row) for row in collections.table], [[1], [2, 3]])
        collections.table.append([4, 5])
        collections.table[0].append(9)
        self.assertEqual([row.copy() for row in collections.table], [[1, 9], [2, 3], [4, 5]])
        collections.table = [[1], (2, 3)]
        self.assertEqual([list(row) for row in collections.table], [[1], [2, 3]])
        self.assertEqual(probe.Collections.sum_table([[1, 2], range(3), iter((4,))]), 10)
        collections.pages.append(["c"])
        self.assertEqual([list(page) for page in collections.pages], [["a", "b"], ["c"]])
        self.assertEqual(collections.tapes[0].read(), b"\1\2")
        target = io.BytesIO()
        collections.tapes.append(target)
        self.assertIs(collections.tapes[1], target)

    def test_iterators_and_disposables_cross_both_ways(self) -> None:
        items = iter([1, 2, 3, 4])
        self.assertEqual(probe.Collections.sum_next(items, 2), 3)
        self.assertEqual(list(items), [3, 4], "only what was asked for is taken")
        self.assertEqual(probe.Collections.join_next(iter((1, "a", None))), "1|a|")
        self.assertEqual(list(probe.Collections.countdown(3)), [2, 1, 0])
        self.assertEqual(probe.Collections.sum_next(probe.Collections.countdown(4), 2), 5)
        self.assertEqual(list(probe.Collections.mixture()), [1, "two", None])
        self.assertEqual(probe.Collections.join_next(probe.Collections.mixture()), "1|two|")
        with self.assertRaisesRegex(TypeError, "can't build IEnumerator value from 'list'"):
            probe.Collections.sum_next([1], 1)
        collections = probe.Collections()
        with collections.resource as resource:
            self.assertTrue(resource)
        probe.Collections.release(collections.resource)
        with self.assertRaisesRegex(TypeError, "can't build IDisposable value from '_io.BytesIO'"):
            probe.Collections.release(io.BytesIO())

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


class Shelves(unittest.TestCase):
    def test_each_kind_reads_and_writes(self) -> None:
        shelf = probe.Shelf()
        for name, value in (("numbers", [5, 4]), ("words", ["x", "yz"]), ("weights", [1.5, 2.5]),
                            ("pairs", [probe.Pair(5.0, 6.0)]), ("choices", list(probe.Choice)),
                            ("echoes", [probe.Echo(), probe.Echo()])):
            for form in (value, tuple(value)):
                with self.subTest(name=name, form=type(form).__name__):
                    setattr(shelf, name, form)
                    view = getattr(shelf, name)
                    self.assertEqual((list(view), view[-1], view[::-1]), (value, value[-1], value[::-1]))
        shelf.limit = 4
        self.assertEqual(list(shelf.counting), [0, 1, 2, 3])
        self.assertEqual(list(shelf.names), ["a", "b", "c"])
        self.assertEqual((list(shelf.loose), list(shelf.plain)), ([1, "two", 3.5], [1, "two"]))
        shelf.tape.write(b"tape")
        self.assertEqual((shelf.tape.seek(1), shelf.tape.read()), (1, b"ape"))

    def test_methods_take_lists_sequences_and_views(self) -> None:
        shelf = probe.Shelf()
        self.assertEqual((shelf.sum_numbers([1, 2]), shelf.sum_numbers(range(4)), shelf.sum_numbers(shelf.numbers)),
                         (3, 6, 6))
        self.assertEqual(shelf.join_words(word for word in "ab"), "a b")
        self.assertEqual(shelf.sum_weights((0.5, 2.0)), 2.5)
        self.assertEqual(list(shelf.reversed([1, 2, 3])), [3, 2, 1])
        with self.assertRaisesRegex(TypeError, "can't build List value from 'generator'"):
            shelf.sum_numbers(n for n in (1, 2))


if __name__ == "__main__":
    unittest.main()
