using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

// The value records of the boundary, mirrored byte for byte from contract/records.h. A record
// lives in the native caller's frame: whoever reads one copies what it keeps.

/// <summary>The one tagged record; see <see cref="ReferenceKind"/> and <see cref="VariantKind"/>.</summary>
[StructLayout(LayoutKind.Explicit, Size = 16)]
public struct VariantArg
{
    [FieldOffset(0)] public int Kind;
    [FieldOffset(8)] public nint Value;
}

/// <summary>A Python string's own storage, borrowed.</summary>
[StructLayout(LayoutKind.Explicit, Size = 16)]
public unsafe struct PyStringArg
{
    [FieldOffset(0)] public int Length;
    [FieldOffset(4)] public int CharSize;
    [FieldOffset(8)] public void* Data;
}

/// <summary>A string view that may own the object it points into.</summary>
[StructLayout(LayoutKind.Explicit, Size = 24)]
public struct PyEphStrArg
{
    [FieldOffset(0)] public PyStringArg Text;
    [FieldOffset(16)] public nint Owner;
}

/// <summary>A pinned buffer.</summary>
[StructLayout(LayoutKind.Explicit, Size = 16)]
public unsafe struct PyBytesArg
{
    [FieldOffset(0)] public int Acquired;
    [FieldOffset(4)] public int Length;
    [FieldOffset(8)] public void* Data;
}

/// <summary>A result of interface type: a handle and the identity of the object's exact type.</summary>
[StructLayout(LayoutKind.Explicit, Size = 16)]
public struct PyObjectOutArg
{
    [FieldOffset(0)] public nint Handle;
    [FieldOffset(8)] public long TypeKey;
}

/// <summary>A result that may be a collection, a stream or a Python object on its way home.</summary>
[StructLayout(LayoutKind.Explicit, Size = 24)]
public struct PyCollectionArg
{
    [FieldOffset(0)] public int Kind;
    [FieldOffset(8)] public nint Handle;
    [FieldOffset(16)] public long TypeKey;
}

[StructLayout(LayoutKind.Explicit, Size = 20)]
public unsafe struct PySysVersionArg
{
    [FieldOffset(0)] public int Count;
    [FieldOffset(4)] public fixed int Parts[4];
}

/// <summary>A point in time on its way out: the clock reading with its kind in the top two bits,
/// and the offset from UTC.</summary>
[StructLayout(LayoutKind.Explicit, Size = 16)]
public struct PyDateTimeOut
{
    [FieldOffset(0)] public long Ticks;
    [FieldOffset(8)] public long Offset;
}

/// <summary>The four words of a decimal: three of the magnitude, then scale and sign.</summary>
[StructLayout(LayoutKind.Explicit, Size = 16)]
public struct PyDecimalArg
{
    [FieldOffset(0)] public int Low;
    [FieldOffset(4)] public int Middle;
    [FieldOffset(8)] public int High;
    [FieldOffset(12)] public int Flags;
}

/// <summary>The colour of korvan.pydrawing: opacity, red, green and blue from the highest byte down.</summary>
[StructLayout(LayoutKind.Explicit, Size = 8)]
public struct ShlColorObject
{
    [FieldOffset(0)] public uint Argb;
    [FieldOffset(4)] public int IsSet;
}

/// <summary>The rectangle of korvan.pydrawing.</summary>
[StructLayout(LayoutKind.Explicit, Size = 16)]
public struct ShlRectangleFObject
{
    [FieldOffset(0)] public float X;
    [FieldOffset(4)] public float Y;
    [FieldOffset(8)] public float Width;
    [FieldOffset(12)] public float Height;
}

/// <summary><see cref="VariantArg.Kind"/> of a typed parameter.</summary>
public enum ReferenceKind
{
    Object = 0,
    Struct = 1,
    Python = 2,
    Sequence = 3,
}

/// <summary><see cref="VariantArg.Kind"/> of a parameter of the universal object type.</summary>
public enum VariantKind
{
    None = 0,
    Object = 1,
    Struct = 2,
    String = 3,
    Buffer = 4,
    Bool = 5,
    Int = 6,
    Float = 7,
    Decimal = 8,
    DecimalTuple = 9,
    DateTime = 10,
    Date = 11,
    Time = 12,
    TimeDelta = 13,
    Uuid = 14,
    List = 15,
    Tuple = 16,
}

/// <summary><see cref="PyCollectionArg.Kind"/>.</summary>
public enum CollectionKind
{
    Plain = 0,
    Exact = 1,
    Python = 2,
}

/// <summary>What a delegate with a status of its own answers.</summary>
public static unsafe class Status
{
    public const int Failed = -1;
    public const int CastNo = 0;
    public const int CastDone = 1;
    public const int Item = 0;
    public const int End = 1;
    public const int OutOfRange = 2;

    /// <summary>The status of an item that was read: one that Python has no type for leaves its error
    /// pending.</summary>
    public static int OfItem(int status, nint* result) =>
        status == Item && *result == 0 ? Failed : status;
}
