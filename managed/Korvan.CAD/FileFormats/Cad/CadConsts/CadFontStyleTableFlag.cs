using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Flags of text styles. Group code 70.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadFontStyleTableFlag
{
    /// <summary>None of the others.</summary>
    None = 0,

    /// <summary>The style is a shape file.</summary>
    Shape = 1,

    /// <summary>Lines run from top to bottom.</summary>
    VerticalText = 4,

    /// <summary>The style comes from an external reference.</summary>
    ExternallyDependent = 16,

    /// <summary>The external reference was found.</summary>
    ResolvedExternal = 32,

    /// <summary>An entity uses the style.</summary>
    Referenced = 64,
}
