namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The names of groups between group codes 102 that drawings have for themselves.</summary>
public static class CadApplicationCodesContainerValues
{
    /// <summary>Gets the group with the handles of objects that are told of changes.</summary>
    public static string Reactors => "ACAD_REACTORS";

    /// <summary>Gets the group with the handle of the dictionary with further data.</summary>
    public static string ExtensionDictionary => "ACAD_XDICTIONARY";

    /// <summary>Gets the group with the handles of the references to a block.</summary>
    public static string BlockReferences => "BLKREFS";
}
