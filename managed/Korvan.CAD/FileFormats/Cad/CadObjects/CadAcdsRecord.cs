using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A record of the data section: data of an object that does not fit into it, as a preview image or the
/// geometry of a solid.</summary>
[CadSequence]
[CadObject("ACDSRECORD")]
public partial class CadAcdsRecord : CadBaseAcds
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcdsRecord()
    {
    }

    /// <summary>Gets or sets the index of the schema. Group code 90.</summary>
    [CadInt(90)]
    public int SchemaIndex { get; set; }

    /// <summary>Gets the values. The list is live. Group code 2.</summary>
    [CadRepeated(2)]
    internal IList<AcdsValue> Values { get; } = new CheckedList<AcdsValue>("values");

    /// <summary>Gets the handle of the object that the data belongs to, in hexadecimal; empty for none. Group code
    /// 320.</summary>
    public string OwnerHandle => Values.FirstOrDefault(static value => value.Handle.Length > 0)?.Handle ?? "";

    /// <summary>Gets or sets the data; empty for none. Group code 310.</summary>
    public byte[] Data
    {
        get => DataValue?.Data ?? [];
        set
        {
            Verify.NotNull(value);
            AcdsValue data = DataValue ?? throw new CadException(
                "The record has no value for data; only records of a drawing that was read have.");
            data.Data = value;
        }
    }

    private AcdsValue? DataValue => Values.FirstOrDefault(static value => value.DataType == AcdsValue.BinaryType);

    /// <summary>Creates a record of data that is not in the section of data.</summary>
    internal static CadAcdsRecord Holding(byte[] data)
    {
        CadAcdsRecord record = new();
        record.Values.Add(new AcdsValue { Name = "ASM_Data", DataType = AcdsValue.BinaryType, Data = data });
        return record;
    }

    /// <summary>Returns the names of the values. Group code 2.</summary>
    /// <returns>The names in the order of the file.</returns>
    public string[] GetValueNames() => [.. Values.Select(static value => value.Name)];
}
