using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>How the elements of a metafile are written.</summary>
[PythonEnum(EnumKind.Integer)]
public enum CgmFileFormat
{
    /// <summary>As bytes: short, and read by all programs.</summary>
    Binary = 0,

    /// <summary>As words and numbers that people can read.</summary>
    ClearText = 1,
}
