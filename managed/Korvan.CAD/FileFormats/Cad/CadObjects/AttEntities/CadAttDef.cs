using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;

/// <summary>The definition of an attribute in a block.</summary>
[CadFieldsOf(typeof(CadAttrib))]
[CadObject("ATTDEF", Subclass = "AcDbAttributeDefinition")]
[CadBits(
    "ExchangeText()", "H StyleType", "2010+ RC", "2018+ ExchangeKind()", "T DefinitionTagString", "BS FieldLength",
    "RC AttFlags", "2007+ B LockPosition", "2010+ RC", "T PromptString")]
public partial class CadAttDef : CadText
{
    private const int LockCode = 280;

    /// <summary>Creates the object with its defaults.</summary>
    public CadAttDef()
    {
    }

    /// <summary>Gets or sets the question that asks for the value. Group code 3.</summary>
    [CadString(3)]
    public string PromptString { get; set; } = "";

    /// <summary>Gets or sets whether the position within the block is locked. Group code 280.</summary>
    public bool LockPosition { get; set; }

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        if (code == LockCode)
        {
            // The version stands before the tag, the lock after it.
            LockPosition = DefinitionTagString.Length > 0 && reader.GetShort() != 0;
        }

        taken = code == LockCode || ReadVerticalAlignment(code, reader);
    }

    partial void OnExchange(ObjectExchange fields)
    {
        ExchangeVerticalAlignment(fields, AttributeAlignmentCode);
        if (fields.Includes(2010, true))
        {
            LockPosition = fields.Bool(LockCode, LockPosition);
        }
    }

    private void ExchangeKind(BitExchange fields) => fields.AttributeKind(this, 4);
}
