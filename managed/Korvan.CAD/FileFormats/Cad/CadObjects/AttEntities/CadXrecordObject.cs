using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;

/// <summary>The record of an attribute with text of several lines.</summary>
[CadSequence]
public partial class CadXrecordObject
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadXrecordObject()
    {
    }

    /// <summary>Gets or sets what happens to the record when it is copied: 0 nothing, 1 the present one is kept, 2 the
    /// copy. Group code 280.</summary>
    [CadShort(280, Optional = true)]
    public short CloningFlag { get; set; } = 1;

    /// <summary>Gets or sets the kind: 0 one line, 2 an attribute of several lines, 4 a definition that is constant and
    /// has several lines. Group code 70.</summary>
    [CadShort(70, Optional = true)]
    public short IsMultiline { get; set; }

    /// <summary>Gets or sets whether the position within the block is locked: 0 no, 1 yes. Group code 70.</summary>
    [CadShort(70, Optional = true)]
    public short IsReallyLocked { get; set; }

    /// <summary>Gets the handles of the attributes of the further lines, in hexadecimal. The list is live. Group code
    /// 340.</summary>
    [CadList(340, Count = 70)]
    public List<string> SecondaryAttributes { get; } = [];

    /// <summary>Gets or sets the alignment point, in object coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint AlignmentPoint { get; set; } = new();

    /// <summary>Gets or sets the annotation scale. Group code 40.</summary>
    [CadDouble(40)]
    public double Scale { get; set; } = 1;

    /// <summary>Gets or sets the tag of the attribute definition. Group code 2.</summary>
    [CadString(2)]
    public string Tag { get; set; } = "";
}
