using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The action that stretches entities of a dynamic block: it moves the points within a frame.</summary>
[CadSequence]
[CadObject("BLOCKSTRETCHACTION", Subclass = "AcDbBlockStretchAction")]
[CadBits(
    "base", "BL XDeltaId", "T XDeltaName", "BL YDeltaId", "T YDeltaName", "2RD[BL] Frame", "Part[BL] Elements",
    "Part[BL] NodeList", "BD DistanceMultiplier", "BD AngleOffset", "RC XYType")]
public partial class CadBlockStretchAction : CadBlockAction
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockStretchAction()
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

    /// <summary>Gets the corners of the frame, in the coordinates of the block. The list is live. Group codes 1011,
    /// 1021.</summary>
    [CadList(1011, Count = 72)]
    public IList<Cad2DPoint> Frame { get; } = new CheckedList<Cad2DPoint>("frame");

    /// <summary>Gets the entities of which some points are moved. The list is live. Group code 73.</summary>
    [CadRepeated(331, Count = 73)]
    public IList<CadBlockStretchActionElement> Elements { get; } =
        new CheckedList<CadBlockStretchActionElement>("elements");

    /// <summary>Gets the parameters and actions of which some points are moved. The list is live. Group code
    /// 75.</summary>
    [CadRepeated(95, Count = 75)]
    internal IList<StretchNode> NodeList { get; } = new CheckedList<StretchNode>("node_list");

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
