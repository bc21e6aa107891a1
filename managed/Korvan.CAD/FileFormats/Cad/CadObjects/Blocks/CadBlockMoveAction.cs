using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The action that moves entities of a dynamic block.</summary>
[CadSequence]
[CadObject("BLOCKMOVEACTION", Subclass = "AcDbBlockMoveAction")]
[CadBits(
    "base", "BL XDeltaId", "T XDeltaName", "BL YDeltaId", "T YDeltaName", "BD DistanceMultiplier", "BD AngleOffset",
    "RC XYType")]
public partial class CadBlockMoveAction : CadBlockAction
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockMoveAction()
    {
    }

    /// <summary>Gets or sets the index of the node with the distance along X. Group code 92.</summary>
    [CadInt(92)]
    public int XDeltaId { get; set; }

    /// <summary>Gets or sets the name of the distance along X. Group code 301.</summary>
    [CadString(301)]
    public string XDeltaName { get; set; } = "";

    /// <summary>Gets or sets the index of the node with the distance along Y. Group code 93.</summary>
    [CadInt(93)]
    public int YDeltaId { get; set; }

    /// <summary>Gets or sets the name of the distance along Y. Group code 302.</summary>
    [CadString(302)]
    public string YDeltaName { get; set; } = "";

    /// <summary>Gets or sets the factor on distances. Group code 140.</summary>
    [CadDouble(140)]
    public double DistanceMultiplier { get; set; } = 1;

    /// <summary>Gets or sets the angle that is added to the direction, in radians. Group code 141.</summary>
    [CadDouble(141)]
    public double AngleOffset { get; set; }

    /// <summary>Gets or sets the distances that count: 0 both, 1 along X, 2 along Y. Group code 280.</summary>
    [CadShort(280)]
    public short XYType { get; set; }
}
