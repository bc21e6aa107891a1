using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>What parameters, actions and grips of dynamic blocks have in common.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbBlockElement")]
[CadBits("base", "T ElementName", "BL ElementMajorVersion", "BL ElementMinorVersion", "BL ElementFlags")]
public abstract partial class CadBlockElement : CadDbEvalExpr
{
    internal CadBlockElement()
    {
    }

    /// <summary>Gets or sets the name. Group code 300.</summary>
    [CadString(300)]
    public string ElementName { get; set; } = "";

    /// <summary>Gets or sets the major version of the program that wrote the element. Group code 98.</summary>
    [CadInt(98)]
    public int ElementMajorVersion { get; set; } = 33;

    /// <summary>Gets or sets the minor version of the program that wrote the element. Group code 99.</summary>
    [CadInt(99)]
    public int ElementMinorVersion { get; set; } = 29;

    /// <summary>Gets or sets flags of the element. Group code 1071.</summary>
    [CadInt(1071)]
    public int ElementFlags { get; set; }
}
