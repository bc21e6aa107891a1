using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>The reference point of a position in a stream.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SeekOrigin
{
    /// <summary>The beginning of the stream.</summary>
    Begin = 0,

    /// <summary>The current position.</summary>
    Current = 1,

    /// <summary>The end of the stream.</summary>
    End = 2,
}
