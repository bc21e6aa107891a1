using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dxf;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A body whose geometry stands in a text of its modeler.</summary>
public abstract partial class CadObjectWithAcisData : CadEntityBase
{
    internal CadObjectWithAcisData()
    {
    }

    /// <summary>Gets the lines of the modeler's text as they stand in the file, in their simple cipher. Empty in
    /// drawings of release 2013 and later, which keep the data in a section of its own. Group codes 1 and
    /// 3.</summary>
    public List<string> AcisData { get; } = [];

    /// <summary>Gets or sets the version of the modeler's text. Group code 70.</summary>
    public short ModelerFormatVersion { get; set; } = 1;

    internal bool ReadAcis(int code, DxfTagReader tags)
    {
        switch (code)
        {
            case 1:
                AcisData.Add(tags.GetString());
                return true;
            case 3 when AcisData.Count > 0:
                AcisData[^1] += tags.GetString();
                return true;
            case 70 when tags.Subclass is null or "AcDbModelerGeometry":
                ModelerFormatVersion = tags.GetShort();
                return true;
            default:
                return false;
        }
    }

    internal void WriteAcis(DxfTagWriter writer)
    {
        if (writer.Release < 2013 || AcisData.Count > 0)
        {
            writer.Write(70, ModelerFormatVersion);
        }

        writer.WriteChunks(AcisData);
    }
}
