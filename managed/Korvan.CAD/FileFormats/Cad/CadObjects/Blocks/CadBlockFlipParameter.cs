using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter that mirrors parts of the block at a line.</summary>
[CadSequence]
[CadObject("BLOCKFLIPPARAMETER", Subclass = "AcDbBlockFlipParameter")]
[CadBits(
    "base", "T Label", "T Description", "T BaseStateLabel", "T FlippedStateLabel", "3BD LabelPoint", "BL FlipState",
    "T Tooltip")]
public partial class CadBlockFlipParameter : CadBlock2PtParameters
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockFlipParameter()
    {
    }

    /// <summary>Gets or sets the name of the parameter. Group code 305.</summary>
    [CadString(305)]
    public string Label { get; set; } = "";

    /// <summary>Gets or sets the description of the parameter. Group code 306.</summary>
    [CadString(306)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets the name of the state that is not mirrored. Group code 307.</summary>
    [CadString(307)]
    public string BaseStateLabel { get; set; } = "";

    /// <summary>Gets or sets the name of the mirrored state. Group code 308.</summary>
    [CadString(308)]
    public string FlippedStateLabel { get; set; } = "";

    /// <summary>Gets or sets the position of the label, in the coordinates of the block. Group codes 1012, 1022,
    /// 1032.</summary>
    [Cad3DPoint(1012)]
    public Cad3DPoint LabelPoint { get; set; } = new();

    /// <summary>Gets or sets the index of the node with the state. Group code 96.</summary>
    [CadInt(96)]
    public int FlipState { get; set; }

    /// <summary>Gets or sets the name of the value of the state. Group code 309.</summary>
    [CadString(309)]
    public string Tooltip { get; set; } = "";
}
