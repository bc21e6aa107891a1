using System;
using System.Collections.Generic;
using Korvan.WrpGen.Interop;
using Xunit;
using Api = Korvan.WrpGen.Generic.ListApi<
    System.Collections.Generic.List<int>, int, Korvan.WrpGen.Generic.ListAccess<int>, int, int,
    Korvan.WrpGen.Generic.ValueCodec<int>>;
using ArrayApi = Korvan.WrpGen.Generic.ListApi<
    string?[], string?, Korvan.WrpGen.Generic.ArrayAccess<string?>, nint, nint, Korvan.WrpGen.Generic.StringCodec>;

namespace Korvan.WrpGen.Tests.Runtime;

[Collection(nameof(FakePython))]
public sealed unsafe class ListApiTests : IDisposable
{
    private readonly List<int> _items = [10, 20, 30, 20];
    private readonly nint _list;

    public ListApiTests() => _list = Handles.New(_items);

    public void Dispose() => Handles.Free(_list);

    [Theory]
    [InlineData(0, 0, 10)]
    [InlineData(3, 0, 20)]
    [InlineData(4, 2, -1)] // one behind the end
    [InlineData(-1, 2, -1)] // adjusted by the caller, or out of range
    public void Get(int index, int status, int value)
    {
        int result = -1;
        Assert.Equal(status, Api.SqGetItem(_list, index, &result));
        Assert.Equal(value, result);
    }

    [Theory]
    [InlineData(0, 99, 0, 20)] // without an index: the last
    [InlineData(1, 0, 0, 10)]
    [InlineData(1, -1, 0, 20)]
    [InlineData(1, 4, 2, -1)]
    [InlineData(1, -5, 2, -1)]
    public void Pop(int hasIndex, int index, int status, int value)
    {
        int result = -1;
        Assert.Equal(status, Api.Pop(_list, hasIndex, index, &result));
        Assert.Equal(value, result);
        Assert.Equal(status == 0 ? 3 : 4, _items.Count);
    }

    [Fact]
    public void PopFromAnEmptyListHasAStatusOfItsOwn()
    {
        int result;
        _items.Clear();
        Assert.Equal(Status.End, Api.Pop(_list, 1, 5, &result));
    }

    [Theory]
    [InlineData(1, new[] { 10, 7, 20, 30, 20 })]
    [InlineData(-1, new[] { 10, 20, 30, 7, 20 })]
    [InlineData(100, new[] { 10, 20, 30, 20, 7 })]
    [InlineData(-100, new[] { 7, 10, 20, 30, 20 })]
    public void InsertTakesAnyIndex(int index, int[] expected)
    {
        Api.Insert(_list, index, 7);
        Assert.Equal(expected, _items);
    }

    [Theory]
    [InlineData(0, 0, 0, 0, 1)]
    [InlineData(1, 2, 0, 0, 3)]
    [InlineData(1, -1, 0, 0, 3)]
    [InlineData(1, 2, 1, 3, -1)]
    [InlineData(0, 0, 1, -3, -1)]
    public void IndexByTakesPythonBounds(int hasStart, int start, int hasStop, int stop, int expected) =>
        Assert.Equal(expected, Api.IndexBy(_list, hasStart, start, hasStop, stop, 20));

    [Fact]
    public void RemoveSaysWhetherItDid()
    {
        Assert.Equal(1, Api.Remove(_list, 20));
        Assert.Equal([10, 30, 20], _items);
        Assert.Equal(0, Api.Remove(_list, 99));
        Assert.Equal(1, Api.CountOf(_list, 20));
    }

    [Fact]
    public void ASliceIsRemovedFromItsHighestIndexDown()
    {
        Api.MpRemoveItems(_list, 2, 2, -2); // del a[0:4:2]
        Assert.Equal([20, 20], _items);
        Api.MpRemoveItemsByLowest(_list, 0, 2, -1); // a block by its lowest index
        Assert.Empty(_items);
        Api.MpRemoveItems(_list, 0, 0, -1);
    }

    [Fact]
    public void AListCanBeAppendedToItself()
    {
        var other = new VariantArg { Value = _list };
        Assert.Equal(1, Api.SqInplaceConcat(_list, &other));
        Assert.Equal([10, 20, 30, 20, 10, 20, 30, 20], _items);
    }

    [Fact]
    public void WhatDoesNotFitIsHandedBackUntouched()
    {
        nint words = Handles.New(new[] { "x", "y" });
        var other = new VariantArg { Value = words };
        Assert.Equal(0, Api.SqInplaceConcat(_list, &other));
        Assert.Equal(0, Api.MpSetItems(_list, &other, 0, 2, 1));
        Assert.Equal([10, 20, 30, 20], _items);
        Handles.Free(words);
    }

    [Theory]
    [InlineData(-1, new int[0])]
    [InlineData(1, new[] { 10, 20, 30, 20 })]
    [InlineData(2, new[] { 10, 20, 30, 20, 10, 20, 30, 20 })]
    public void Repeat(int count, int[] expected)
    {
        Api.SqInplaceRepeat(_list, count);
        Assert.Equal(expected, _items);
    }

    [Theory]
    [InlineData(0, new[] { 10, 20, 20, 30 })]
    [InlineData(1, new[] { 30, 20, 20, 10 })]
    public void Sort(int reverse, int[] expected)
    {
        Api.Sort(_list, reverse);
        Assert.Equal(expected, _items);
    }

    [Fact]
    public void AnArrayKeepsItsLength()
    {
        nint array = Handles.New(new[] { "b", "a" });
        nint result = 0;
        Assert.Equal(Status.Failed, ArrayApi.Pop(array, 0, 0, &result));
        Assert.Equal("NotSupportedException", FakePython.Failure.Name);
        Assert.Equal(0, ArrayApi.SqGetItem(array, 1, &result));
        Assert.Equal("a", FakePython.ValueOf(result));
        Handles.Free(array);
    }
}
