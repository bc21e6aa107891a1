using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Any tags that a program keeps in a drawing.</summary>
[CadObject("XRECORD", Subclass = "AcDbXrecord")]
public partial class CadXRecord : CadObjectBase
{
    /// <summary>Creates a record without content.</summary>
    public CadXRecord()
    {
    }

    /// <summary>Gets the tags, group codes 1 to 369. The list is live.</summary>
    public IList<CadCodeValue> Data { get; } = new CheckedList<CadCodeValue>("data");

    partial void OnReadCode(int code, DxfTagReader tags, ref bool taken)
    {
        taken = tags.Subclass is not null;
        if (taken)
        {
            Data.Add(tags.ToCodeValue());
        }
    }

    partial void OnWriteCodes(DxfTagWriter writer) => Data.ForEach(writer.Write);
}
