using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The layouts of a drawing: the model and sheets of paper.</summary>
[NamedObjects(typeof(CadLayout), "layout")]
public partial class CadLayoutDictionary : NonGenericDictionary;
