using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The external elements, by their numbers in binary files (ISO/IEC 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum ExternalElement
{
    /// <summary>The element "message command", in clear text MESSAGE.</summary>
    MessageCommand = 1,

    /// <summary>The element "application data", in clear text APPLDATA.</summary>
    ApplicationData = 2,
}

/// <summary>The commands and keywords of external elements.</summary>
public static partial class ExternalElements;
