using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using Korvan.WrpGen.Model;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Reading;

/// <summary>Reads a compiled library into the one model.</summary>
public sealed class LibraryReader
{
    private readonly RootMap _root;
    private readonly XmlDocs _docs;
    private readonly Dictionary<string, TypeModel> _bound = [];
    private readonly Dictionary<string, Type> _types = [];
    private readonly List<LeftOut> _leftOut = [];

    private LibraryReader(RootMap root, XmlDocs docs)
    {
        _root = root;
        _docs = docs;
    }

    public static BindingModel Read(string assemblyPath, string? xmlPath, RootMap root, string interopAssembly) =>
        Read([assemblyPath], xmlPath, root, interopAssembly);

    /// <summary>Reads several assemblies as one library.</summary>
    public static BindingModel Read(
        IReadOnlyList<string> assemblyPaths, string? xmlPath, RootMap root, string interopAssembly)
    {
        string runtime = Path.GetDirectoryName(typeof(object).Assembly.Location)!;
        IEnumerable<string> folders =
            assemblyPaths.Select(path => Path.GetDirectoryName(Path.GetFullPath(path))!).Append(runtime);
        IEnumerable<string> files = folders.SelectMany(folder => Directory.GetFiles(folder, "*.dll"));
        IEnumerable<string> distinct = files.DistinctBy(Path.GetFileName, StringComparer.OrdinalIgnoreCase);
        using var context = new MetadataLoadContext(new PathAssemblyResolver(distinct));
        Assembly[] assemblies =
            [.. assemblyPaths.Select(path => context.LoadFromAssemblyPath(Path.GetFullPath(path)))];
        IEnumerable<string> xmls = assemblyPaths.Select(
            (path, at) => at == 0 && xmlPath is not null ? xmlPath : Path.ChangeExtension(path, ".xml"));
        return new LibraryReader(root, XmlDocs.Load(xmls)).Read(assemblies, interopAssembly);
    }

    private BindingModel Read(IEnumerable<Assembly> assemblies, string interopAssembly)
    {
        IEnumerable<Type> all = assemblies.SelectMany(assembly => assembly.GetTypes());
        foreach (Type type in all.Where(IsBindable).OrderBy(Key, StringComparer.Ordinal))
        {
            _types[type.FullName!] = type;
            _bound[type.FullName!] = Declare(type);
        }
        var values = new ValueReader(_bound);
        foreach ((string name, TypeModel model) in _bound)
        {
            new TypeReader(_types[name], model, _bound, values, _docs, _leftOut).Read();
        }
        foreach (TypeModel model in _bound.Values.Where(one => one.WalkedItem is not null))
        {
            LeaveItemOpen(model);
        }
        TypeModel[] types = [.. _bound.Values];
        return new BindingModel
        {
            Root = _root,
            InteropAssembly = interopAssembly,
            Types = types,
            RootModule = BuildModules(types),
            Elements = ElementCollector.Collect(types),
            LeftOut = [.. _leftOut.OrderBy(one => one.Member, StringComparer.Ordinal)],
        };
    }

    private static void LeaveItemOpen(TypeModel model)
    {
        for (TypeModel? level = model.Base; level is { WalkedItem: null, ProtocolElement: null }; level = level.Base)
        {
            level.LeavesItemOpen = level.Protocol != CollectionProtocol.None;
        }
    }

    // Nested types behind their outer ones.
    private static string Key(Type type) => type.FullName!;

    private bool IsBindable(Type type)
    {
        if (!type.IsVisible || type.IsGenerated() || !_root.Contains(type.Namespace))
        {
            return false;
        }
        string? reason =
            type.IsGenericTypeDefinition ? "a generic type has no single form"
            : type.IsDelegate() ? "a delegate can't be made from Python"
            : type.IsByRefLike ? "a ref struct can't be kept"
            : type.IsForbidden() ? "marked obsolete as an error"
            : null;
        if (reason is not null)
        {
            _leftOut.Add(new LeftOut(type.FullName!, reason));
        }
        return reason is null;
    }

    private TypeModel Declare(Type type)
    {
        TypeModel? outer = type.DeclaringType is { } declaring ? _bound[declaring.FullName!] : null;
        return new TypeModel
        {
            Name = type.Name,
            Namespace = type.Namespace!,
            ManagedName = type.FullName!,
            CSharpName = type.CSharpName(),
            Kind = KindOf(type),
            Module = _root.ModuleOf(type.Namespace!),
            QualifiedName = outer is null ? type.Name : $"{outer.QualifiedName}.{type.Name}",
            Outer = outer,
            IsAbstract = type.IsAbstract,
            ShowsMostDerived = type.ShowsMostDerived(),
            Doc = _docs.Of(DocId.Of(type), type.BaseType is null ? [] : [DocId.Of(type.BaseType)]),
        };
    }

    private static BoundKind KindOf(Type type) =>
        type.IsEnum ? BoundKind.Enum
        : type.IsInterface ? BoundKind.Interface
        : type.IsValueType ? BoundKind.Struct
        : type.IsStaticClass() ? BoundKind.StaticClass
        : BoundKind.Class;

    private ModuleModel BuildModules(IReadOnlyList<TypeModel> types)
    {
        var modules = new SortedDictionary<string, ModuleModel>(StringComparer.Ordinal);
        Add(_root.Namespace);
        foreach (TypeModel type in types)
        {
            Add(type.Namespace).Types.Add(type);
        }
        foreach (ModuleModel module in modules.Values)
        {
            module.Types.Sort((a, b) => string.CompareOrdinal(a.QualifiedName, b.QualifiedName));
        }
        return modules[_root.Module];

        ModuleModel Add(string space)
        {
            string name = _root.ModuleOf(space);
            if (modules.TryGetValue(name, out ModuleModel? module))
            {
                return module;
            }
            module = modules[name] = new ModuleModel(name, space);
            if (space != _root.Namespace)
            {
                List<ModuleModel> siblings = Add(space[..space.LastIndexOf('.')]).Children;
                siblings.Add(module);
                siblings.Sort((a, b) => string.CompareOrdinal(a.Name, b.Name));
            }
            return module;
        }
    }
}
