using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The block that a multileader shows as its content.</summary>
[CadBits(
    "H BlockRecordHandle", "3BD Normal", "3BD Location", "3BD Scale", "BD Rotation", "CMP Color",
    "Matrix TransformationMatrix")]
public partial class CadMLeaderBlock
{
    /// <summary>Creates the content with its defaults.</summary>
    public CadMLeaderBlock()
    {
    }

    /// <summary>Gets or sets the handle of the block record in hexadecimal. Group code 341.</summary>
    [CadHandle(341, Optional = true)]
    public string BlockRecordHandle { get; set; } = "";

    /// <summary>Gets or sets the unit normal of the plane of the block. Group codes 14, 24, 34.</summary>
    [Cad3DPoint(14)]
    public Cad3DPoint Normal { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the position of the base point of the block, in world coordinates. Group codes 15, 25,
    /// 35.</summary>
    [Cad3DPoint(15)]
    public Cad3DPoint Location { get; set; } = new();

    /// <summary>Gets or sets the scale factors. Group codes 16, 26, 36.</summary>
    [Cad3DPoint(16)]
    public Cad3DPoint Scale { get; set; } = new(1, 1, 1);

    /// <summary>Gets or sets the rotation, in radians. Group code 46.</summary>
    [CadDouble(46)]
    public double Rotation { get; set; }

    /// <summary>Gets or sets the colour: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true colour,
    /// 0xC3000000 plus the index of a colour. Group code 93.</summary>
    [CadInt(93)]
    public int Color { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets the transformation of the block as 16 numbers, row by row. The list is live. Group code
    /// 47.</summary>
    [CadList(47)]
    public List<double> TransformationMatrix { get; } = [];
}
