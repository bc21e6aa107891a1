using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The margins of table cells as far as they differ from the style.</summary>
[CadSequence]
[CadBits("BS OverrideFlags", "if OverrideFlags != 0: Part Values")]
public partial class CadMargin
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadMargin()
    {
    }

    /// <summary>Gets or sets which margins go before those of the style, a bit for each; 0 for none. Group code
    /// 171.</summary>
    [CadShort(171)]
    public short OverrideFlags { get; set; }

    /// <summary>Gets the margins.</summary>
    [CadPart]
    [CadWhen("OverrideFlags != 0")]
    public CadCellMargin Values { get; } = new();
}
