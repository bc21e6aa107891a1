using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg2000;

/// <summary>The container of a JPEG 2000 picture.</summary>
[PythonEnum(EnumKind.Integer)]
public enum Jpeg2000Codec
{
    /// <summary>A JP2 file, which states its colours (ISO/IEC 15444-1, annex I).</summary>
    Jp2 = 0,

    /// <summary>The bare codestream.</summary>
    J2K = 1,
}
