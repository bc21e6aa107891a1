using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter that is a position.</summary>
[CadSequence]
[CadObject("BLOCKPOINTPARAMETER", Subclass = "AcDbBlockPointParameter")]
[CadBits("base", "T PositionLabel", "T PositionDescription", "3BD LabelPoint")]
public partial class CadBlockPointParameter : CadBlock1PtParameters
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockPointParameter()
    {
    }

    /// <summary>Gets or sets the name of the position. Group code 303.</summary>
    [CadString(303)]
    public string PositionLabel { get; set; } = "";

    /// <summary>Gets or sets the description of the position. Group code 304.</summary>
    [CadString(304)]
    public string PositionDescription { get; set; } = "";

    /// <summary>Gets or sets the position of the label, in the coordinates of the block. Group codes 1011, 1021,
    /// 1031.</summary>
    [Cad3DPoint(1011)]
    public Cad3DPoint LabelPoint { get; set; } = new();
}
