// The one sentence of the search that comes with its number inside and so is in no table of translations.
(() => {
  const counted = /^Search finished, found (\d+) page\(s\) matching the search query\.$/;
  const sentences = {
    es: (count) => `La búsqueda encontró ${count} ${count === "1" ? "resultado" : "resultados"}.`,
    fr: (count) => `La recherche a donné ${count} ${count === "1" ? "résultat" : "résultats"}.`,
  };
  const sentence = sentences[document.documentElement.lang];
  if (!sentence) return;
  Documentation.TRANSLATIONS = new Proxy(Documentation.TRANSLATIONS, {
    get: (known, text) => {
      const found = typeof text === "string" && counted.exec(text);
      return found ? sentence(found[1]) : known[text];
    },
  });
})();
