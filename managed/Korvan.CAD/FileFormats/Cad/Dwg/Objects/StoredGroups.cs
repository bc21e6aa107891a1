using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The references of an object that text files have in groups of applications.</summary>
/// <param name="dictionary">The extension dictionary; 0 for none.</param>
/// <param name="reactors">The objects that are notified of changes.</param>
internal sealed class StoredGroups(ulong dictionary, ulong[] reactors) : Deferred<CadApplicationCodesContainer>
{
    internal override CadApplicationCodesContainer Create()
    {
        CadApplicationCodesContainer container = new();
        if (dictionary != 0)
        {
            Add(container, "ACAD_XDICTIONARY", 360, dictionary);
        }

        if (reactors.Length > 0)
        {
            Add(container, "ACAD_REACTORS", 330, reactors);
        }

        return container;
    }

    private static void Add(CadApplicationCodesContainer container, string name, int code, params ulong[] handles)
    {
        CadApplicationCodes group = new(name);
        foreach (ulong handle in handles)
        {
            group.Codes.Add(new CadCodeValue(code, HandleText.Format(handle)));
        }

        container.ApplicationCodes.Add(group);
    }
}
