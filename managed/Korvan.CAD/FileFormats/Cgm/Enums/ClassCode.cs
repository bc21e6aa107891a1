using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The classes of elements (ISO/IEC 8632-3, 8.1).</summary>
[PythonEnum(EnumKind.Integer)]
public enum ClassCode
{
    /// <summary>Where metafile, pictures and their parts begin and end.</summary>
    DelimiterElement = 0,

    /// <summary>What holds for the whole metafile.</summary>
    MetaFileDescriptorElement = 1,

    /// <summary>What holds for a whole picture.</summary>
    PictureDescriptorElement = 2,

    /// <summary>How coordinates are coded and what is clipped.</summary>
    ControlElement = 3,

    /// <summary>What is drawn.</summary>
    GraphicalPrimitiveElement = 4,

    /// <summary>What drawn things look like.</summary>
    AttributeElement = 5,

    /// <summary>What no standard describes.</summary>
    EscapeElement = 6,

    /// <summary>Messages and data of applications.</summary>
    ExternalElement = 7,

    /// <summary>Parts that are stored and drawn again.</summary>
    SegmentControlElement = 8,

    /// <summary>Attributes of application structures.</summary>
    ApplicationStructureDescriptorElement = 9,
}
