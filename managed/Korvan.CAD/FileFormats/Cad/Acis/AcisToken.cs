using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The kinds of tokens in the data of a modeler.</summary>
internal enum AcisKind
{
    Integer,
    LongInteger,
    Double,
    String,
    Enumeration,
    Pointer,
    Keyword,
    Open,
    Close,
    Position,
    Vector,
    Parameters,
    True,
    False,
}

/// <summary>A token of a record.</summary>
/// <param name="Kind">What it is.</param>
/// <param name="Number">The integer, the value of an enumeration, or the index of a record.</param>
/// <param name="Value">The coordinates; a number is the first of them.</param>
/// <param name="Text">The string or the keyword.</param>
internal readonly record struct AcisToken(AcisKind Kind, long Number = 0, Vec3 Value = default, string Text = "")
{
    internal bool IsFlag => Kind is AcisKind.True or AcisKind.False;

    internal bool IsNumber => Kind is AcisKind.Integer or AcisKind.LongInteger or AcisKind.Double;

    internal static AcisToken Of(double value) => new(AcisKind.Double, 0, new Vec3(value, 0, 0));
}
