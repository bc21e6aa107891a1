using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;

/// <summary>Objects by names.</summary>
[CadObject("DICTIONARY", Subclass = "AcDbDictionary")]
[CadBits("ExchangeEntries()")]
public partial class CadDictionary : CadDictionaryBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDictionary()
    {
    }

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        taken = ReadEntry(code, reader);
    }

    partial void OnExchange(ObjectExchange fields)
    {
        ExchangeEntries(fields);
    }

    private void ExchangeEntries(BitExchange fields) => ExchangeEntryBits(fields, GetType() != typeof(CadDictionary));
}
