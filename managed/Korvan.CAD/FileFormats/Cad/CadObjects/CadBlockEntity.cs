using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A block: entities under a name that are inserted as one.</summary>
[CadObject("BLOCK", Subclass = "AcDbBlockBegin")]
[CadBits("T Name")]
public partial class CadBlockEntity : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockEntity()
    {
        Entities = new EntityList<CadEntityBase>("entities", this);
    }

    /// <inheritdoc/>
    public override string Key => Name;

    /// <summary>Gets or sets the name. Group code 2.</summary>
    [CadString(2)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets bits: 1 without name, 2 with attribute definitions, 4 external reference, 8 overlaid
    /// reference. Group code 70.</summary>
    [CadShort(70)]
    public short Flags { get; set; }

    /// <summary>Gets or sets the point that is placed at the insertion point. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint BasePoint { get; set; } = new();

    /// <summary>Gets or sets the name once more. Group code 3.</summary>
    [CadString(3)]
    public string NameAgain { get; set; } = "";

    /// <summary>Gets or sets the path of an external reference. Group code 1.</summary>
    [CadString(1)]
    public string XRefPathName { get; set; } = "";

    /// <summary>Gets or sets the description. Group code 4.</summary>
    [CadString(4, Optional = true, Since = 2000)]
    public string Description { get; set; } = "";

    /// <summary>Gets the entities of the block in drawing order. The list is live.</summary>
    public IList<CadEntityBase> Entities { get; }

    /// <summary>Gets whether the content is in another file.</summary>
    public bool IsExternalReference => (Flags & 4) != 0;

    /// <summary>Gets or sets what ends the block in files.</summary>
    internal CadEndBlock End { get; set; } = new();

    /// <summary>Gets or sets the layout that was added with this block and has no handle yet.</summary>
    internal CadLayout? Layout { get; set; }
}
