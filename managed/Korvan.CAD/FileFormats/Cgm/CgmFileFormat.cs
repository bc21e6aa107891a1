using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>The encodings of a metafile.</summary>
[PythonEnum(EnumKind.Integer)]
public enum CgmFileFormat
{
    /// <summary>The binary encoding (ISO/IEC 8632-3): compact, and read by all programs.</summary>
    Binary = 0,

    /// <summary>The clear text encoding (ISO/IEC 8632-4): keywords and numbers that people can read.</summary>
    ClearText = 1,
}
