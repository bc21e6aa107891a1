using System;
using System.Drawing;

namespace Korvan.WrpGen.Interop;

/// <summary>Bytes, dates, decimals, identifiers and versions in their wire forms.</summary>
public static unsafe class PyValues
{
    private const int KindShift = 62;
    private const long TicksMask = 0x3FFF_FFFF_FFFF_FFFF;

    public static byte[]? ReadBytes(PyBytesArg* bytes) => bytes->Length switch
    {
        < 0 => null,
        0 => [],
        int length => Copy(bytes->Data, length),
    };

    // Every byte is written at once, so a large array need not be zeroed first.
    private static byte[] Copy(void* data, int length)
    {
        byte[] copy = GC.AllocateUninitializedArray<byte>(length);
        new ReadOnlySpan<byte>(data, length).CopyTo(copy);
        return copy;
    }

    /// <summary>A new reference to a bytearray, or to None for null.</summary>
    public static nint WriteBytes(byte[]? bytes)
    {
        if (bytes is null)
        {
            return PyObjects.None();
        }
        byte none = 0;
        fixed (byte* start = bytes)
        {
            return PyHost.NewBytes(start is null ? &none : start, bytes.Length);
        }
    }

    public static DateTime ReadDateTime(long value) =>
        new(value & TicksMask, (DateTimeKind)((ulong)value >> KindShift & 3));

    public static void WriteDateTime(DateTime value, PyDateTimeOut* result)
    {
        result->Ticks = value.Ticks | (long)value.Kind << KindShift;
        result->Offset = value.Kind == DateTimeKind.Local
            ? TimeZoneInfo.Local.GetUtcOffset(value).Ticks
            : 0;
    }

    public static DateTimeOffset ReadDateTimeOffset(PyDateTimeOut* value) =>
        new(value->Ticks & TicksMask, new TimeSpan(value->Offset));

    public static void WriteDateTimeOffset(DateTimeOffset value, PyDateTimeOut* result)
    {
        result->Ticks = value.Ticks;
        result->Offset = value.Offset.Ticks;
    }

    public static Guid ReadGuid(byte* bytes) => new(new ReadOnlySpan<byte>(bytes, 16));

    public static void WriteGuid(Guid value, void* result) =>
        value.TryWriteBytes(new Span<byte>(result, 16));

    public static decimal ReadDecimal(PyDecimalArg* words) =>
        new(new ReadOnlySpan<int>(words, 4));

    public static void WriteDecimal(decimal value, PyDecimalArg* result) =>
        decimal.GetBits(value, new Span<int>(result, 4));

    public static Color ReadColor(ShlColorObject* color) =>
        color->IsSet == 0 ? Color.Empty : Color.FromArgb((int)color->Argb);

    public static void WriteColor(Color value, ShlColorObject* result) =>
        *result = new ShlColorObject { Argb = (uint)value.ToArgb(), IsSet = value.IsEmpty ? 0 : 1 };

    public static void WriteRectangle(RectangleF value, ShlRectangleFObject* result) =>
        *result = new ShlRectangleFObject { X = value.X, Y = value.Y, Width = value.Width, Height = value.Height };

    public static Version? ReadVersion(PySysVersionArg* version) => version->Count switch
    {
        2 => new Version(version->Parts[0], version->Parts[1]),
        3 => new Version(version->Parts[0], version->Parts[1], version->Parts[2]),
        4 => new Version(version->Parts[0], version->Parts[1], version->Parts[2], version->Parts[3]),
        _ => null,
    };

    public static void WriteVersion(Version? value, PySysVersionArg* result)
    {
        *result = default;
        if (value is null)
        {
            result->Count = -1;
            return;
        }
        result->Parts[0] = value.Major;
        result->Parts[1] = value.Minor;
        result->Parts[2] = value.Build;
        result->Parts[3] = value.Revision;
        result->Count = value.Build < 0 ? 2 : value.Revision < 0 ? 3 : 4;
    }
}
