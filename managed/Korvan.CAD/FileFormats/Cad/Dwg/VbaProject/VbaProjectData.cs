namespace Korvan.CAD.FileFormats.Cad.Dwg.VbaProject;

/// <summary>The macros of a drawing: a project in the compound file format of its programming environment. Source: Open
/// Design Specification for .dwg files, 5.4.1, chapter 15.</summary>
public class VbaProjectData
{
    internal VbaProjectData(byte[] data)
    {
        Data = data;
    }

    /// <summary>Gets the project.</summary>
    public byte[] Data { get; }
}
