using Korvan.CAD.Binding;

namespace Korvan.CAD.Annotations;

/// <summary>Where the text of an annotation stands, seen from the point that it speaks of; the values can be combined.</summary>
[PythonEnum(EnumKind.Flag)]
public enum AnnotationDirection
{
    /// <summary>Above, to the right.</summary>
    Default = 0,

    /// <summary>To the left.</summary>
    Left = 1,

    /// <summary>To the right.</summary>
    Right = 2,

    /// <summary>Above.</summary>
    Above = 4,

    /// <summary>Below.</summary>
    Below = 8,
}
