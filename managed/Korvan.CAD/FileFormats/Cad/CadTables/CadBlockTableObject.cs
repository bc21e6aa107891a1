using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>The record of a block: it owns the entities of the block.</summary>
[CadObject("BLOCK_RECORD", Subclass = "AcDbBlockTableRecord")]
[CadBits(
    "ExchangeRecord()", "ExchangeDefinition()", "2007+ BS Units", "2007+ B Explodability", "2007+ RC Scalability",
    "ExchangeParts()", "2000+ H LayoutHandle")]
public partial class CadBlockTableObject : CadSymbolTableGroupCodes
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockTableObject()
    {
    }

    /// <summary>Gets or sets the handle of the layout that shows the block in hexadecimal; empty or 0 for none. Group
    /// code 340.</summary>
    [CadHandle(340, Optional = true, Since = 2000)]
    public string LayoutHandle { get; set; } = "";

    /// <summary>Gets or sets the unit of insertion, as in $INSUNITS. Group code 70.</summary>
    [CadShort(70, Optional = true, Since = 2007)]
    public short Units { get; set; }

    /// <summary>Gets or sets whether insertions may be exploded. Group code 280.</summary>
    [CadShort(280, Optional = true, Since = 2007)]
    public short Explodability { get; set; } = 1;

    /// <summary>Gets or sets whether insertions are scaled alike in all directions. Group code 281.</summary>
    [CadShort(281, Optional = true, Since = 2007)]
    public short Scalability { get; set; }

    /// <summary>Gets or sets the preview image of the block. Group code 310.</summary>
    [CadBinary(310, Optional = true, Since = 2000)]
    internal byte[] Preview { get; set; } = [];

    /// <inheritdoc/>
    internal override void ExchangeNameAndFlags(ObjectExchange fields) => ExchangeName(fields);

    /// <summary>Gets or sets what drawing databases have here of the block.</summary>
    internal BlockDefinition? Definition { get; set; }

    private void ExchangeDefinition(BitExchange fields)
    {
        BlockDefinition block = Definition ??= new BlockDefinition();
        block.Preview = Preview;
        block.ExchangeBits(fields);
        Preview = block.Preview;
    }

    private void ExchangeParts(BitExchange fields) => Definition!.ExchangeParts(fields, this);
}
