using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Enums;

/// <summary>The classes of elements (ISO/IEC 8632-3, 8.1).</summary>
[PythonEnum(EnumKind.Integer)]
public enum ClassCode
{
    /// <summary>Delimiters of the metafile, pictures and their parts.</summary>
    DelimiterElement = 0,

    /// <summary>Descriptors of the whole metafile.</summary>
    MetaFileDescriptorElement = 1,

    /// <summary>Descriptors of a picture.</summary>
    PictureDescriptorElement = 2,

    /// <summary>Coordinate precisions, clipping and other control.</summary>
    ControlElement = 3,

    /// <summary>Graphical primitives.</summary>
    GraphicalPrimitiveElement = 4,

    /// <summary>Attributes of primitives.</summary>
    AttributeElement = 5,

    /// <summary>Escapes to functionality outside the standard.</summary>
    EscapeElement = 6,

    /// <summary>Messages and application data.</summary>
    ExternalElement = 7,

    /// <summary>Segments, which are stored and copied.</summary>
    SegmentControlElement = 8,

    /// <summary>Attributes of application structures.</summary>
    ApplicationStructureDescriptorElement = 9,
}
