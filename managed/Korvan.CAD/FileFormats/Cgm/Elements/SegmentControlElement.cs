using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The segment control elements, by their numbers in binary files (ISO/IEC 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum SegmentControlElement
{
    /// <summary>The element "copy segment", in clear text COPYSEG.</summary>
    CopySegment = 1,

    /// <summary>The element "inheritance filter", in clear text INHFILTER.</summary>
    InheritanceFilter = 2,

    /// <summary>The element "clip inheritance", in clear text CLIPINH.</summary>
    ClipInheritance = 3,

    /// <summary>The element "segment transformation", in clear text SEGTRAN.</summary>
    SegmentTransformation = 4,

    /// <summary>The element "segment highlighting", in clear text SEGHIGHL.</summary>
    SegmentHighlighting = 5,

    /// <summary>The element "segment display priority", in clear text SEGDISPPRI.</summary>
    SegmentDisplayPriority = 6,

    /// <summary>The element "segment pick priority", in clear text SEGPICKPRI.</summary>
    SegmentPickPriority = 7,
}

/// <summary>The commands and keywords of segment control elements.</summary>
public static partial class SegmentControlElements;
