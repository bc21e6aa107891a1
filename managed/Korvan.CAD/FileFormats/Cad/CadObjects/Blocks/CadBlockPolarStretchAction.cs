using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The action that stretches and rotates entities of a dynamic block by a polar parameter.</summary>
[CadSequence]
[CadObject("BLOCKPOLARSTRETCHACTION", Subclass = "AcDbBlockPolarStretchAction")]
[CadBits(
    "base", "BL XDeltaId", "T XDeltaName", "BL YDeltaId", "T YDeltaName", "BL BaseId", "T BaseName", "BL EndId",
    "T EndName", "BL UpdatedBaseId", "T UpdatedBaseName", "BL UpdatedEndId", "T UpdatedEndName", "2RD[BL] Frame",
    "Part[BL] Elements", "H[BL] RotatedHandles", "Part[BL] NodeList", "BD DistanceMultiplier", "BD AngleOffset",
    "BS XYType")]
internal sealed partial class CadBlockPolarStretchAction : CadBlockAction
{
    /// <summary>Gets or sets the index of the node with the distance along X. Group code 92.</summary>
    [CadInt(92)]
    internal int XDeltaId { get; set; }

    /// <summary>Gets or sets the name of the distance along X. Group code 301.</summary>
    [CadString(301)]
    internal string XDeltaName { get; set; } = "";

    /// <summary>Gets or sets the index of the node with the distance along Y. Group code 93.</summary>
    [CadInt(93)]
    internal int YDeltaId { get; set; }

    /// <summary>Gets or sets the name of the distance along Y. Group code 302.</summary>
    [CadString(302)]
    internal string YDeltaName { get; set; } = "";

    /// <summary>Gets or sets the index of the node with the first point. Group code 94.</summary>
    [CadInt(94)]
    internal int BaseId { get; set; }

    /// <summary>Gets or sets the name of the first point. Group code 303.</summary>
    [CadString(303)]
    internal string BaseName { get; set; } = "";

    /// <summary>Gets or sets the index of the node with the second point. Group code 95.</summary>
    [CadInt(95)]
    internal int EndId { get; set; }

    /// <summary>Gets or sets the name of the second point. Group code 304.</summary>
    [CadString(304)]
    internal string EndName { get; set; } = "";

    /// <summary>Gets or sets the index of the node with the changed first point. Group code 96.</summary>
    [CadInt(96)]
    internal int UpdatedBaseId { get; set; }

    /// <summary>Gets or sets the name of the changed first point. Group code 305.</summary>
    [CadString(305)]
    internal string UpdatedBaseName { get; set; } = "";

    /// <summary>Gets or sets the index of the node with the changed second point. Group code 97.</summary>
    [CadInt(97)]
    internal int UpdatedEndId { get; set; }

    /// <summary>Gets or sets the name of the changed second point. Group code 306.</summary>
    [CadString(306)]
    internal string UpdatedEndName { get; set; } = "";

    /// <summary>Gets the corners of the frame, in the coordinates of the block. Group codes 1011, 1021.</summary>
    [CadList(1011, Count = 73)]
    internal IList<Cad2DPoint> Frame { get; } = new CheckedList<Cad2DPoint>("frame");

    /// <summary>Gets the entities of which some points are moved. Group code 72.</summary>
    [CadRepeated(331, Count = 72)]
    internal IList<PolarStretchElement> Elements { get; } = new CheckedList<PolarStretchElement>("elements");

    /// <summary>Gets the handles of the entities that are only rotated, in hexadecimal. Group code 332.</summary>
    [CadList(332, Count = 74)]
    internal List<string> RotatedHandles { get; } = [];

    /// <summary>Gets the parameters and actions of which some points are moved. Group code 75.</summary>
    [CadRepeated(76, Count = 75)]
    internal IList<PolarStretchNode> NodeList { get; } = new CheckedList<PolarStretchNode>("node_list");

    /// <summary>Gets or sets the factor on distances. Group code 141.</summary>
    [CadDouble(141)]
    internal double DistanceMultiplier { get; set; } = 1;

    /// <summary>Gets or sets the angle that is added to the direction, in radians. Group code 140.</summary>
    [CadDouble(140)]
    internal double AngleOffset { get; set; }

    /// <summary>Gets or sets the distances that count: 0 both, 1 along X, 2 along Y. Group code 77.</summary>
    [CadShort(77)]
    internal short XYType { get; set; }
}
