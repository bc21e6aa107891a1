using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;

/// <summary>Objects by names.</summary>
[CadObject("DICTIONARY", Subclass = "AcDbDictionary")]
public partial class CadDictionary : CadDictionaryBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDictionary()
    {
    }

    partial void OnReadCode(int code, DxfTagReader tags, ref bool taken)
    {
        taken = ReadEntry(code, tags);
    }

    partial void OnWriteCodes(DxfTagWriter writer)
    {
        WriteEntries(writer);
    }
}
