using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A solid whose geometry is a text of the solid modeler.</summary>
public abstract partial class CadObjectWithAcisData : CadEntityBase
{
    internal CadObjectWithAcisData()
    {
    }

    /// <summary>Gets the lines of the modeler's text as they are in the file, in their simple cipher. Empty in
    /// drawings of release 2013 and later, which keep the data in a section of its own. Group codes 1 and 3.</summary>
    public List<string> AcisData { get; } = [];

    /// <summary>Gets or sets the version of the modeler's text. Group code 70.</summary>
    public short ModelerFormatVersion { get; set; } = 1;

    /// <summary>Gets or sets the record of the data section with the modeler's binary data.</summary>
    internal CadAcdsRecord? DataRecord { get; set; }

    internal bool ReadAcis(int code, FieldReader reader)
    {
        switch (code)
        {
            case 1:
                AcisData.Add(reader.GetString());
                return true;
            case 3 when AcisData.Count > 0:
                AcisData[^1] += reader.GetString();
                return true;
            case 70 when reader.Subclass is null or "AcDbModelerGeometry":
                ModelerFormatVersion = reader.GetShort();
                return true;
            default:
                return false;
        }
    }

    internal void ExchangeAcis(ObjectExchange fields)
    {
        if (fields.Has(70, 0, fields.Release < 2013 || AcisData.Count > 0))
        {
            ModelerFormatVersion = fields.Int16(70, ModelerFormatVersion);
        }

        fields.Lines(AcisData);
    }

    /// <summary>Carries the data of the modeler as drawing databases have it.</summary>
    private protected void ExchangeModeler(BitExchange fields)
    {
        const int stored = 2;
        int version = ModelerBits.TextVersion;
        if (fields.HasStoredData)
        {
            version = stored;
        }
        else if (!fields.Bit(AcisData.Count == 0 && DataRecord is not { Data.Length: > 0 }))
        {
            fields.Bit(false);
            version = fields.BitShort(AcisData.Count > 0 ? ModelerBits.TextVersion : stored);
            ModelerBits.ExchangeData(this, version, fields);
        }

        ModelerFormatVersion = fields.IsReading ? (short)version : ModelerFormatVersion;
        ModelerBits.ExchangeRest(version, fields);
    }
}
