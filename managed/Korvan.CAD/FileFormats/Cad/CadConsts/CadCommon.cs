namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>Names with a meaning of their own in drawings.</summary>
public static class CadCommon
{
    /// <summary>Gets the name of a line type that is that of the layer.</summary>
    public static string ByLayer => "BYLAYER";

    /// <summary>Gets the name of a line type that is that of the block reference.</summary>
    public static string ByBlock => "BYBLOCK";

    /// <summary>Gets the name of the line type without dashes.</summary>
    public static string Continuous => "CONTINUOUS";

    /// <summary>Gets the name of the default styles of texts and dimensions.</summary>
    public static string Standard => "STANDARD";

    /// <summary>Gets the name of the layer that every drawing has.</summary>
    public static string DefaultLayer => "0";

    /// <summary>Gets the name of the layer of the points that dimensions are defined by, which is not
    /// plotted.</summary>
    public static string DefinitionPointsLayer => "DEFPOINTS";

    /// <summary>Gets the name of the block with the entities of model space.</summary>
    public static string ModelSpace => "*Model_Space";

    /// <summary>Gets the name of the block with the entities of the active layout.</summary>
    public static string PaperSpace => "*Paper_Space";

    /// <summary>Gets the name of the layout of model space.</summary>
    public static string ModelLayout => "Model";

    /// <summary>Gets the start of the names of blocks without a name of their own, as those of the states of dynamic
    /// blocks.</summary>
    public static string AnonymousBlockPrefix => "*U";

    /// <summary>Gets the start of the names of blocks with the graphics of dimensions.</summary>
    public static string AnonymousDimensionPrefix => "*D";

    /// <summary>Gets the start of the names of blocks with the graphics of tables.</summary>
    public static string AnonymousTablePrefix => "*T";

    /// <summary>Gets the start of the names of blocks with the lines of hatches.</summary>
    public static string AnonymousHatchPrefix => "*X";
}
