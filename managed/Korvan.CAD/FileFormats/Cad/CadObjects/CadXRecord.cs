using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Any tags that a program keeps in a drawing.</summary>
[CadObject("XRECORD", Subclass = "AcDbXrecord")]
[CadBits("ExchangeData()")]
public partial class CadXRecord : CadObjectBase
{
    private object? _data; // the tags, or what they are made of

    /// <summary>Creates a record without content.</summary>
    public CadXRecord()
    {
    }

    /// <summary>Gets the tags, group codes 1 to 369. The list is live.</summary>
    public IList<CadCodeValue> Data =>
        Deferred<IList<CadCodeValue>>.Get(ref _data) ?? (IList<CadCodeValue>)(_data = NewList());

    /// <summary>Returns the parts of a broken table; empty for a record that is not of a table.</summary>
    /// <returns>The parts from top to bottom.</returns>
    public CadBreakData[] GetTableBreaks() => TableBreaks.Read(Data);

    /// <summary>Sets what the tags are made of when they are asked for.</summary>
    internal void Defer(Deferred<IList<CadCodeValue>> data) => _data = data;

    /// <summary>Returns a list for the tags of a record.</summary>
    internal static IList<CadCodeValue> NewList() => new CheckedList<CadCodeValue>("data");

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = reader.Subclass is not null;
        if (taken)
        {
            Data.Add(reader.ToCodeValue());
        }
    }

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Data);

    private void ExchangeData(BitExchange fields) => fields.TypedTags(this, 280);
}
