using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.WrpGen.Generic;
using Korvan.WrpGen.Interop;
using Xunit;

namespace Korvan.WrpGen.Tests.Runtime;

[Collection(nameof(FakePython))]
public unsafe class AdapterTests
{
    private static VariantArg Argument(object value, ReferenceKind kind = ReferenceKind.Python) =>
        new() { Kind = (int)kind, Value = FakePython.New(value) };

    [Fact]
    public void ALentObjectIsOfNoUseAfterItsCall()
    {
        VariantArg argument = Argument(new List<object> { 1, 2 });
        PyScope scope = PyScope.Lending();
        IList<int> items = scope.ItemList(&argument, UntypedElement<int>.Instance)!;
        Assert.Equal([1, 2], items);
        Assert.Equal(1, FakePython.At(argument.Value).References);
        scope.End();
        Assert.Throws<ObjectDisposedException>(() => items.Count);
    }

    [Fact]
    public void AKeptObjectOutlivesItsCall()
    {
        VariantArg argument = Argument(new List<object> { 1 });
        PyScope scope = PyScope.Keeping();
        IList<int> items = scope.ItemList(&argument, UntypedElement<int>.Instance)!;
        scope.End();
        items.Add(7);
        Assert.Equal([1, 7], (List<object>)FakePython.ValueOf(argument.Value)!);
        Assert.Equal(2, FakePython.At(argument.Value).References);
        GC.KeepAlive(items);
    }

    [Fact]
    public void AKeptObjectIsReleasedOnlyByACallFromPython()
    {
        VariantArg argument = Argument(new List<object>());
        Keep(&argument);
        GC.Collect();
        GC.WaitForPendingFinalizers();
        Assert.Equal(2, FakePython.At(argument.Value).References);
        KeptReferences.Settle();
        Assert.Equal(1, FakePython.At(argument.Value).References);

        [System.Runtime.CompilerServices.MethodImpl(System.Runtime.CompilerServices.MethodImplOptions.NoInlining)]
        static void Keep(VariantArg* argument)
        {
            PyScope scope = PyScope.Keeping();
            Assert.NotNull(scope.AnyIterable(argument));
        }
    }

    [Fact]
    public void WhatIsCopiedOrRefusedIsNotKept()
    {
        VariantArg items = Argument(new List<object> { 1, 2 });
        VariantArg view = Argument(new List<object> { 1, 2 });
        PyScope scope = PyScope.Keeping();
        Assert.Equal([1, 2], scope.ListOf(&items, UntypedElement<int>.Instance)!);
        Assert.Equal([1, 2], scope.AnyArray(&items)!.Cast<object>());
        Assert.Equal(1, FakePython.At(items.Value).References);
        IList<int> kept = scope.ItemList(&view, UntypedElement<int>.Instance)!;
        Assert.Equal(2, FakePython.At(view.Value).References);
        scope.Fail(new InvalidOperationException());
        scope.End();
        Assert.Equal(1, FakePython.At(view.Value).References);
        Assert.Throws<ObjectDisposedException>(() => kept.Count);
    }

    [Fact]
    public void AListInALentListEndsWithItsCallAndOneInACopyIsKept()
    {
        var inner = new List<object> { 7 };
        VariantArg argument = Argument(new List<object> { inner });
        PyScope lending = PyScope.Lending();
        var lent = (PyList)lending.AnyList(&argument)![0]!;
        Assert.Equal(7, lent[0]);
        lending.End();
        Assert.Throws<ObjectDisposedException>(() => lent.Count);
        PyScope keeping = PyScope.Keeping();
        var kept = (PyList)keeping.AnyArrayList(&argument)![0]!;
        keeping.End();
        Assert.Equal(7, kept[0]);
        GC.KeepAlive(kept);
    }

    [Fact]
    public void ConcreteListsAndArraysAreCopies()
    {
        VariantArg argument = Argument(new List<object> { 3, 4 });
        PyScope scope = PyScope.Lending();
        List<int> list = scope.ListOf(&argument, UntypedElement<int>.Instance)!;
        int[] array = scope.ArrayOf(&argument, UntypedElement<int>.Instance)!;
        scope.End();
        Assert.Equal([3, 4], list);
        Assert.Equal([3, 4], array);
    }

    [Fact]
    public void AnIteratorThatRaisesEndsTheWalkWithItsText()
    {
        VariantArg argument = Argument(new List<object> { 1, new Exception("ValueError: third") });
        PyScope scope = PyScope.Lending();
        IEnumerable<int> items = scope.Iterable(&argument, UntypedElement<int>.Instance)!;
        Assert.Equal("ValueError: third", Assert.Throws<PythonException>(() => items.Sum()).Message);
    }

    [Fact]
    public void AnIndexOutOfRangeIsTold()
    {
        VariantArg argument = Argument(new List<object>());
        PyScope scope = PyScope.Lending();
        IList<int> items = scope.ItemList(&argument, UntypedElement<int>.Instance)!;
        Assert.Throws<ArgumentOutOfRangeException>(() => items[0]);
    }

    [Fact]
    public void WhatCameFromPythonGoesHomeAsItself()
    {
        VariantArg argument = Argument(new List<object>());
        PyScope scope = PyScope.Lending();
        object adapter = scope.AnyIterable(&argument)!;
        PyCollectionArg result;
        References.WriteAny(adapter, &result);
        Assert.Equal((int)CollectionKind.Python, result.Kind);
        Assert.Equal(argument.Value, result.Handle);
        Assert.Equal(1, FakePython.At(argument.Value).References); // the native side adds its own
        Assert.Equal(argument.Value, PyWriter.Write(adapter));
        Assert.Equal(2, FakePython.At(argument.Value).References);
    }

    [Fact]
    public void AStreamCrossesOnceABlock()
    {
        var file = new MemoryStream();
        VariantArg argument = Argument(file);
        PyScope scope = PyScope.Lending();
        Stream stream = scope.Stream(&argument)!;
        FakePython.FileCalls = 0;
        for (int i = 0; i < 200_000; i++)
        {
            stream.WriteByte((byte)i);
        }
        scope.Complete();
        Assert.InRange(FakePython.FileCalls, 1, 5);
        Assert.Equal(200_000, file.Length);
        scope.End();
        Assert.Throws<ObjectDisposedException>(() => stream.WriteByte(0));
    }

    [Fact]
    public void ReadingAheadIsTakenBackAtTheEndOfTheCall()
    {
        var file = new MemoryStream(new byte[1000]);
        VariantArg argument = Argument(file);
        PyScope scope = PyScope.Lending();
        scope.Stream(&argument)!.ReadExactly(new byte[10]);
        scope.Complete();
        scope.End();
        Assert.Equal(10, file.Position);
    }

    [Theory]
    [InlineData(1)] // more than was asked for
    [InlineData(-2000)] // less than nothing
    public void AStreamThatLiesIsCaught(int lie)
    {
        VariantArg argument = Argument(new MemoryStream(new byte[1000]));
        PyScope scope = PyScope.Keeping();
        Stream stream = scope.Stream(&argument)!;
        FakePython.FileLie = lie;
        try
        {
            Assert.Throws<IOException>(() => stream.ReadExactly(new byte[1000]));
        }
        finally
        {
            FakePython.FileLie = 0;
        }
    }
}
