using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The extended data of a program as it is in the file.</summary>
/// <param name="application">The handle of the program.</param>
/// <param name="data">The values, which are whole.</param>
/// <param name="format">What the strings of the file are.</param>
internal sealed class StoredXdata(ulong application, byte[] data, RecordFormat format) : Deferred<CadXdataContainer>
{
    internal byte[] Data => data;

    /// <summary>Gets the name of the program, or its handle where the file does not name it.</summary>
    internal string Name => format.Names.Find(application) ?? HandleText.Format(application);

    /// <summary>Gets or sets the data of the next program at the object.</summary>
    internal StoredXdata? Next { get; set; }

    internal override CadXdataContainer Create()
    {
        CadXdataContainer container = new();
        for (StoredXdata? one = this; one is not null; one = one.Next)
        {
            CadXdata xdata = new(one.Name);
            ExtendedData.ReadItems(one.Data, xdata.Data, format);
            container.XdataEntities.Add(xdata);
        }

        return container;
    }
}
