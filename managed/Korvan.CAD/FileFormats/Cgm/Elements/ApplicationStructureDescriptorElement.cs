using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The application structure descriptor elements, by their numbers in binary files (ISO/IEC 8632-3, clause
/// 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum ApplicationStructureDescriptorElement
{
    /// <summary>The element "application structure attribute", in clear text APSATTR.</summary>
    ApplicationStructureAttribute = 1,
}

/// <summary>The commands and keywords of application structure descriptor elements.</summary>
public static partial class ApplicationStructureDescriptorElements;
