using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;

/// <summary>The value of an attribute of a block insertion.</summary>
[CadObject("ATTRIB", Subclass = "AcDbAttribute")]
[CadBits(
    "ExchangeText()", "H StyleType", "2010+ RC", "2018+ ExchangeKind()", "T DefinitionTagString", "BS FieldLength",
    "RC AttFlags", "2007+ B LockPosition")]
public partial class CadAttrib : CadText
{
    private const int LockCode = 280;

    /// <summary>Creates the object with its defaults.</summary>
    public CadAttrib()
    {
    }

    /// <summary>Gets or sets the tag, which names the attribute definition. Group code 2.</summary>
    [CadString(2)]
    public string DefinitionTagString { get; set; } = "";

    /// <summary>Gets or sets properties: 1 invisible, 2 constant, 4 to be verified, 8 preset; added up. Group
    /// code 70.</summary>
    [CadShort(70)]
    public short AttFlags { get; set; }

    /// <summary>Gets or sets the maximum number of characters; 0 for any. Group code 73.</summary>
    [CadShort(73, Optional = true)]
    public short FieldLength { get; set; }

    /// <summary>Gets or sets the record of an attribute with text of several lines; null for one line.</summary>
    [CadPart]
    [CadSubclass("AcDbXrecord")]
    public CadXrecordObject? XrecordObject { get; set; }

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

    private void ExchangeKind(BitExchange fields) => fields.AttributeKind(this, 2);
}
