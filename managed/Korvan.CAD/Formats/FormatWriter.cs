using System;
using System.IO;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;

namespace Korvan.CAD.Formats;

/// <summary>Writes content with options of one class.</summary>
internal sealed class FormatWriter
{
    /// <summary>Gets the class of options that selects this writer.</summary>
    internal required Type OptionsType { get; init; }

    /// <summary>Gets the function that returns the kind of output for some content, by its type alone;
    /// <see langword="null"/> for content that cannot be written.</summary>
    internal required Func<object, OutputKind?> KindOf { get; init; }

    /// <summary>Gets the function that writes the content.</summary>
    internal required Action<object, ExportContext, Stream> Write { get; init; }

    /// <summary>Creates a writer for content of one kind.</summary>
    /// <typeparam name="TContent">The interface of the content.</typeparam>
    /// <typeparam name="TOptions">The class of options.</typeparam>
    /// <param name="kind">The kind of output.</param>
    /// <param name="write">Writes the content.</param>
    internal static FormatWriter For<TContent, TOptions>(
        OutputKind kind, Action<TContent, TOptions, ExportContext, Stream> write)
        where TContent : class
        where TOptions : ImageOptionsBase => new()
        {
            OptionsType = typeof(TOptions),
            KindOf = content => content is TContent ? kind : null,
            Write = (content, context, output) => write((TContent)content, (TOptions)context.Options, context, output),
        };
}
