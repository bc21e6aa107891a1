using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The action that scales entities of a dynamic block.</summary>
[CadSequence]
[CadObject("BLOCKSCALEACTION", Subclass = "AcDbBlockScaleAction")]
[CadBits(
    "base", "BL ScaleId", "T ScaleName", "BL XScaleId", "T XScaleName", "BL YScaleId", "T YScaleName",
    "if fields.HasMore: RC ScaleType")]
public partial class CadBlockScaleAction : CadBlockActionWithBasePt
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockScaleAction()
    {
    }

    /// <summary>Gets or sets the index of the node with the factor. Group code 94.</summary>
    [CadInt(94)]
    public int ScaleId { get; set; }

    /// <summary>Gets or sets the index of the node with the factor along X. Group code 95.</summary>
    [CadInt(95)]
    public int XScaleId { get; set; }

    /// <summary>Gets or sets the index of the node with the factor along Y. Group code 96.</summary>
    [CadInt(96)]
    public int YScaleId { get; set; }

    /// <summary>Gets or sets the name of the factor. Group code 303.</summary>
    [CadString(303)]
    public string ScaleName { get; set; } = "";

    /// <summary>Gets or sets the name of the factor along X. Group code 304.</summary>
    [CadString(304)]
    public string XScaleName { get; set; } = "";

    /// <summary>Gets or sets the name of the factor along Y. Group code 305.</summary>
    [CadString(305)]
    public string YScaleName { get; set; } = "";

    /// <summary>Gets or sets which axes are scaled, as databases state it: 0 both, 1 X, 2 Y.</summary>
    internal int ScaleType { get; set; }
}
