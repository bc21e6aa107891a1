using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The sections of an interchange file.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadSectionType
{
    /// <summary>Variables of the drawing.</summary>
    Header = 0,

    /// <summary>Classes that programs added.</summary>
    Classes = 1,

    /// <summary>Symbol tables.</summary>
    Tables = 2,

    /// <summary>Block definitions.</summary>
    Blocks = 3,

    /// <summary>Entities of model and paper space.</summary>
    Entities = 4,

    /// <summary>Objects that are not drawn.</summary>
    Objects = 5,

    /// <summary>Data of solids.</summary>
    AcdsData = 6,

    /// <summary>The preview image.</summary>
    ThumbnailImage = 7,

    /// <summary>A section of another kind.</summary>
    Unknown = 8,
}
