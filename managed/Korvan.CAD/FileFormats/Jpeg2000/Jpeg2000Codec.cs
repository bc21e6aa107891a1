using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg2000;

/// <summary>Container of a JPEG 2000 image.</summary>
[PythonEnum(EnumKind.Integer)]
public enum Jpeg2000Codec
{
    /// <summary>A JP2 file, which states its colour space (ISO/IEC 15444-1, annex I).</summary>
    Jp2 = 0,

    /// <summary>The bare codestream.</summary>
    J2K = 1,
}
