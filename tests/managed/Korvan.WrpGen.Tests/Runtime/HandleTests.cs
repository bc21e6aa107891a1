using System;
using Korvan.WrpGen.Interop;
using Xunit;

namespace Korvan.WrpGen.Tests.Runtime;

[Collection(nameof(FakePython))]
public unsafe class HandleTests
{
    [Fact]
    public void EveryHandleIsCountedUntilItIsFreed()
    {
        long before = Handles.LiveCount;
        nint first = Handles.New("one");
        nint second = Handles.New("one");
        Assert.Equal(before + 2, Handles.LiveCount);
        Assert.NotEqual(first, second); // each crossing has a handle of its own
        Handles.Free(first);
        Assert.Equal("one", Handles.Target(second));
        Handles.Free(second);
        Handles.Free(0);
        Assert.Equal(before, Handles.LiveCount);
    }

    [Fact]
    public void NullHasNoHandle()
    {
        Assert.Equal(0, Handles.New(null));
        Assert.Null(Handles.Object<string>(0));
    }

    [Fact]
    public void AHandleAndARecordAreToldApart()
    {
        nint handle = Handles.New("target");
        var record = new VariantArg { Value = handle };
        Assert.Equal("target", Handles.TargetOfEither(handle));
        Assert.Equal("target", Handles.TargetOfEither((nint)(&record)));
        Assert.Null(Handles.TargetOfEither(0));
        Handles.Free(handle);
    }

    [Fact]
    public void AStructChangesInItsBoxAndIsCopiedOutOfIt()
    {
        nint handle = Handles.NewBox(new DateTimeOffset(2000, 1, 1, 0, 0, 0, TimeSpan.Zero));
        var record = new VariantArg { Kind = (int)ReferenceKind.Struct, Value = handle };
        DateTimeOffset copy = Handles.Struct<DateTimeOffset>(&record);
        Handles.SelfStruct<DateTimeOffset>(handle) = copy.AddYears(1);
        Assert.Equal(2000, copy.Year);
        Assert.Equal(2001, Handles.Struct<DateTimeOffset>(&record).Year);
        Handles.Free(handle);
    }

    [Fact]
    public void AnObjectThatWasNeverConstructedHasNoMembers() =>
        Assert.Throws<InvalidOperationException>(() => Handles.Self<string>(0));

    [Theory]
    [InlineData(null, 1)] // a null casts to null
    [InlineData("text", 1)]
    [InlineData(5, 0)]
    public void CastsToAClass(object? value, int status)
    {
        nint handle = Handles.New(value);
        var record = new VariantArg { Value = handle };
        nint result = 0;
        Assert.Equal(status, Casts.ToReference<string>(&record, &result));
        Assert.Equal(value as string, Handles.Target(result));
        Handles.Free(result);
        Handles.Free(handle);
    }

    [Theory]
    [InlineData(DayOfWeek.Friday, 1)]
    [InlineData(5, 0)] // a number is no enum, whatever its value
    public void CastsToAnEnum(object value, int status)
    {
        nint handle = Handles.New(value);
        int result = -1;
        Assert.Equal(status, Casts.ToEnum<DayOfWeek, int>(handle, &result));
        Assert.Equal(status == 1 ? 5 : -1, result);
        Handles.Free(handle);
    }
}
