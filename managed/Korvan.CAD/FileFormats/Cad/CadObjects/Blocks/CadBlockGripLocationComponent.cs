using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The value of one coordinate of a grip.</summary>
[CadSequence]
[CadObject("BLOCKGRIPLOCATIONCOMPONENT", Subclass = "AcDbBlockGripExpr")]
[CadBits("base", "BL GripId", "T Expression")]
public partial class CadBlockGripLocationComponent : CadDbEvalExpr
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockGripLocationComponent()
    {
    }

    /// <summary>Gets or sets the index of the node of the grip. Group code 91.</summary>
    [CadInt(91)]
    public int GripId { get; set; }

    /// <summary>Gets or sets the name of the value, as in UpdatedX. Group code 300.</summary>
    [CadString(300)]
    public string Expression { get; set; } = "";
}
