using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Acis;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A solid whose geometry is a text of the solid modeler.</summary>
public abstract partial class CadObjectWithAcisData : CadEntityBase
{
    private const int Since = 2013;

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

    /// <summary>Gets or sets the binary data of a surface before it was trimmed; empty for none.</summary>
    internal byte[] UntrimmedData { get; set; } = [];

    /// <summary>Gets or sets the identifier of the state of the data, from release 2013 on; null for none. Group codes
    /// 290 and 2.</summary>
    internal Guid? Revision { get; set; }

    /// <summary>Gets whether the object has data of the modeler in any form.</summary>
    internal bool HasModelerData => AcisData.Count > 0 || DataRecord is { Data.Length: > 0 };

    /// <summary>Returns the data of the modeler in their binary form; empty where there are none.</summary>
    internal byte[] GetBinaryData() =>
        AcisData.Count > 0 ? AcisForms.ToBinary(AcisData) : DataRecord?.Data ?? [];

    /// <summary>Returns the data of the modeler as enciphered lines; none where there are none.</summary>
    internal List<string> GetTextData() =>
        AcisData.Count > 0 ? AcisData : AcisForms.ToText(DataRecord?.Data ?? []);

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
            case 290 when reader.Subclass is "AcDbModelerGeometry":
                Revision = reader.GetShort() != 0 ? Revision ?? Guid.Empty : null;
                return true;
            case 2 when reader.Subclass is "AcDbModelerGeometry":
                Revision = RevisionFrom(reader.GetString());
                return true;
            default:
                return false;
        }
    }

    internal void ExchangeAcis(ObjectExchange fields)
    {
        ExchangeRevision(fields);
        List<string> lines = fields.Modeler switch
        {
            ModelerForm.Text => GetTextData(),
            ModelerForm.Separate when GetBinaryData().Length > 0 => [],
            _ => AcisData,
        };
        short version = fields.Modeler == ModelerForm.Text && lines.Count > 0
            ? (short)ModelerBits.TextVersion : ModelerFormatVersion;
        if (fields.Has(70, 0, fields.Release < 2013 || lines.Count > 0))
        {
            version = fields.Int16(70, version);
            ModelerFormatVersion = fields.IsReading ? version : ModelerFormatVersion;
        }

        fields.Lines(lines);
    }

    private Guid? RevisionFrom(string text) =>
        Revision is not null && Guid.TryParse(text, out Guid id) ? id : Revision;

    private void ExchangeRevision(ObjectExchange fields)
    {
        const int flag = 290;
        const int identifier = 2;
        if (fields.Has(flag, Since, Revision is not null))
        {
            bool isStated = fields.Bool(flag, Revision is not null);
            Revision = isStated ? Revision ?? Guid.Empty : null;
        }

        if (fields.Has(identifier, Since, Revision is not null))
        {
            string text = fields.Text(identifier, Revision?.ToString("B") ?? "");
            Revision = fields.IsReading ? RevisionFrom(text) : Revision;
        }
    }

    /// <summary>Carries the data of the modeler as drawing databases have it.</summary>
    private protected void ExchangeModeler(BitExchange fields)
    {
        int version = ModelerBits.TextVersion;
        if (fields.HasStoredData)
        {
            version = ModelerBits.StoredVersion;
        }
        else if (!fields.Bit(!HasModelerData))
        {
            const int withBinaryData = 2004;
            bool isText = AcisData.Count > 0 || fields.Release < withBinaryData;
            fields.Bit(false);
            version = fields.BitShort(isText ? ModelerBits.TextVersion : ModelerBits.StoredVersion);
            ModelerBits.ExchangeData(this, version, fields);
        }

        ModelerFormatVersion = fields.IsReading ? (short)version : ModelerFormatVersion;
        ModelerBits.ExchangeRest(this, version, fields);
    }
}
