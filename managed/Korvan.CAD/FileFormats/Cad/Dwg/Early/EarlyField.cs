namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>A field of a record: how it is stored, its group code, and when the record has it.</summary>
/// <param name="Coding">How the value is stored.</param>
/// <param name="Code">The group code; 0 for fields that text files do not have.</param>
/// <param name="Width">The width of a fixed string, of unused bytes or of a list.</param>
internal readonly record struct EarlyField(EarlyCoding Coding, int Code, int Width = 0)
{
    /// <summary>Gets the name of a header variable without its dollar sign, or of a table.</summary>
    internal string Name { get; init; } = "";

    /// <summary>Gets the bit in the options of the record that states that it has the field; 0 for no such bit. Of a
    /// <see cref="EarlyCoding.Raised"/> point it states that it has a Z.</summary>
    internal int Option { get; init; }

    /// <summary>Gets whether the record has the field if the bit is not set.</summary>
    internal bool IsInverse { get; init; }

    /// <summary>Gets the first release with the field.</summary>
    internal EarlyRelease Since { get; init; } = EarlyRelease.R14;

    /// <summary>Gets the last release with the field.</summary>
    internal EarlyRelease Until { get; init; } = EarlyRelease.R11;

    /// <summary>Determines whether a record has the field.</summary>
    /// <param name="release">The release of the file.</param>
    /// <param name="options">The options of the record.</param>
    internal bool IsIn(EarlyRelease release, int options) => release >= Since && release <= Until
        && (Option == 0 || Coding == EarlyCoding.Raised || ((options & Option) != 0) != IsInverse);

    internal EarlyField If(int option) => this with { Option = option };

    internal EarlyField Unless(int option) => this with { Option = option, IsInverse = true };

    internal EarlyField From(EarlyRelease first) => this with { Since = first };

    internal EarlyField UpTo(EarlyRelease last) => this with { Until = last };

    internal static EarlyField Byte(int code) => new(EarlyCoding.Byte, code);

    internal static EarlyField Short(int code) => new(EarlyCoding.Short, code);

    internal static EarlyField Real(int code) => new(EarlyCoding.Real, code);

    internal static EarlyField Angle(int code) => new(EarlyCoding.Angle, code);

    internal static EarlyField Plane(int code) => new(EarlyCoding.Plane, code);

    internal static EarlyField Flat(int code) => new(EarlyCoding.Flat, code);

    internal static EarlyField Spatial(int code) => new(EarlyCoding.Spatial, code);

    internal static EarlyField Point(int code) => new(EarlyCoding.Point, code);

    internal static EarlyField Counted(int code) => new(EarlyCoding.Counted, code);

    internal static EarlyField Fixed(int code, int width) => new(EarlyCoding.Fixed, code, width);

    internal static EarlyField Unused(int width) => new(EarlyCoding.Unused, 0, width);
}
