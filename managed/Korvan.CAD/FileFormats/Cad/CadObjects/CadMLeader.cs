using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A multileader: leader lines with arrowheads that point from a text or a block.</summary>
[CadObject("MULTILEADER", Subclass = "AcDbMLeader")]
[CadBits("2010+ BS Version", "Part ContextData", "Part Style")]
public partial class CadMLeader : CadEntityBase
{
    /// <summary>The colour of the block, or of the multileader, in the form that multileaders keep colours
    /// in.</summary>
    internal const int ColorByBlock = unchecked((int)0xC1000000);

    private const int ContextStart = 300;
    private const int ContextEnd = 301;

    /// <summary>Creates the object with its defaults.</summary>
    public CadMLeader()
    {
    }

    /// <summary>Gets or sets the version of the object. Group code 270.</summary>
    [CadShort(270, Since = 2010)]
    public short Version { get; set; } = 2;

    /// <summary>Gets the leaders and the content. Group code 300.</summary>
    public CadMLeaderContextData ContextData { get; } = new();

    /// <summary>Gets the properties, of which the style has defaults.</summary>
    public CadMLeaderStyle Style { get; } = new();

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        if (code == ContextStart)
        {
            FieldParts.Read(reader, ContextEnd, ContextData.ReadField, ContextData.Kept);
            taken = true;
            return;
        }

        taken = Style.ReadField(code, reader);
    }

    partial void OnExchange(ObjectExchange fields)
    {
        fields.Brace(ContextStart, "CONTEXT_DATA{");
        ContextData.Exchange(fields);
        fields.Brace(ContextEnd, "}");
        Style.Exchange(fields);
    }
}
