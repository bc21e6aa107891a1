using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>Attributes of application structures. The numbers are those of binary files (ISO/IEC 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum ApplicationStructureDescriptorElement
{
    /// <summary>The element "application structure attribute", in clear text APSATTR.</summary>
    ApplicationStructureAttribute = 1,
}

/// <summary>Attributes of application structures.</summary>
public static partial class ApplicationStructureDescriptorElements;
