using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>From where a place in a stream is counted.</summary>
[PythonEnum(EnumKind.Integer)]
public enum SeekOrigin
{
    /// <summary>From the first byte.</summary>
    Begin = 0,

    /// <summary>From the present place.</summary>
    Current = 1,

    /// <summary>From behind the last byte.</summary>
    End = 2,
}
