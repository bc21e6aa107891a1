using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The fields of a drawing.</summary>
[CadSequence]
[CadMarkers(Trailing = "AcDbFieldList")]
[CadObject("FIELDLIST", Subclass = "AcDbIdSet")]
[CadBits("ExchangeFields()")]
public partial class CadFieldList : CadObjectBase, ICadObjectContainer
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadFieldList()
    {
    }

    /// <summary>Gets the handles of the fields, in hexadecimal. The list is live. Group code 330.</summary>
    [CadList(330, Count = 90)]
    public List<string> FieldHandles { get; } = [];

    /// <inheritdoc/>
    public string[] GetObjectHandles() => [.. FieldHandles];

    private void ExchangeFields(BitExchange fields)
    {
        int count = fields.CountLong(FieldHandles.Count);
        fields.Bit(false);
        fields.Handles(HandleRole.SoftPointer, FieldHandles, count);
    }
}
