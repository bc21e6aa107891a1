namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An object that holds others by their handles.</summary>
public interface ICadObjectContainer
{
    /// <summary>Returns the handles of the objects that this one holds.</summary>
    /// <returns>The handles in hexadecimal, in the order of the file.</returns>
    string[] GetObjectHandles();
}
