using Korvan.CAD.Binding;

namespace Korvan.CAD.Annotations;

/// <summary>The side of the annotated point on which the text of an annotation is; the values can be
/// combined.</summary>
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
