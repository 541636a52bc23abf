#include "lang/own_texts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <tuple>

#include "core/code_page.h"
#include "lang/language.h"
#include "lang/own_text_row.h"
#include "lang/own_texts_of_fields.h"

namespace ecr {
namespace {

constexpr std::string_view place_of_first = "%1";

// clang-format off
constexpr OwnTextRow own_texts_of_screens[] = {
    {OwnText::one_of_several,
     {"%1 of %2", "%1 de %2", "%1 sur %2", "%1 von %2", "%1 van %2", "%1 de %2", "%1 af %2", "%1 av %2"}},
    {OwnText::time_left,
     {"%1:%2 left", "Quedan %1:%2", "Encore %1:%2", "Noch %1:%2", "Nog %1:%2", "Faltam %1:%2", "%1:%2 tilbage",
      "%1:%2 igjen"}},
    {OwnText::reading_programming,
     {"Reading the programming from the register", "Leyendo la programación de la caja",
      "Lecture de la programmation de la caisse", "Die Programmierung wird aus der Kasse gelesen",
      "De programmering wordt uit de kassa gelezen", "A ler a programação da caixa",
      "Programmeringen læses fra kassen", "Programmeringen leses fra kassen"}},
    {OwnText::sending_programming,
     {"Sending the programming to the register", "Enviando la programación a la caja",
      "Envoi de la programmation à la caisse", "Die Programmierung wird an die Kasse gesendet",
      "De programmering wordt naar de kassa gestuurd", "A enviar a programação para a caixa",
      "Programmeringen sendes til kassen", "Programmeringen sendes til kassen"}},
    {OwnText::reading_items,
     {"Reading the items from the register", "Leyendo los artículos de la caja", "Lecture des articles de la caisse",
      "Die Artikel werden aus der Kasse gelesen", "De artikelen worden uit de kassa gelezen",
      "A ler os artigos da caixa", "Varerne læses fra kassen", "Varene leses fra kassen"}},
    {OwnText::sending_items,
     {"Sending the items to the register", "Enviando los artículos a la caja", "Envoi des articles à la caisse",
      "Die Artikel werden an die Kasse gesendet", "De artikelen worden naar de kassa gestuurd",
      "A enviar os artigos para a caixa", "Varerne sendes til kassen", "Varene sendes til kassen"}},
    {OwnText::taking_in_items,
     {"The register is taking in the changed items", "La caja está incorporando los artículos cambiados",
      "La caisse enregistre les articles modifiés", "Die Kasse übernimmt die geänderten Artikel",
      "De kassa neemt de gewijzigde artikelen over", "A caixa está a receber os artigos alterados",
      "Kassen tager de ændrede varer ind", "Kassen tar inn de endrede varene"}},
    {OwnText::sending_logo,
     {"Sending the logo to the register", "Enviando el logotipo a la caja", "Envoi du logo à la caisse",
      "Das Logo wird an die Kasse gesendet", "Het logo wordt naar de kassa gestuurd",
      "A enviar o logótipo para a caixa", "Logoet sendes til kassen", "Logoen sendes til kassen"}},
    {OwnText::converting_logo,
     {"Converting the logo", "Convirtiendo el logotipo", "Conversion du logo", "Das Logo wird umgewandelt",
      "Het logo wordt omgezet", "A converter o logótipo", "Logoet konverteres", "Logoen konverteres"}},
    {OwnText::looking_for_ports,
     {"Looking for serial ports", "Buscando puertos serie", "Recherche des ports série",
      "Serielle Anschlüsse werden gesucht", "Seriële poorten worden gezocht", "A procurar portas série",
      "Serielle porte søges", "Leter etter serieporter"}},
    {OwnText::looking_for_register,
     {"Looking for the register", "Buscando la caja", "Recherche de la caisse", "Die Kasse wird gesucht",
      "De kassa wordt gezocht", "A procurar a caixa", "Kassen søges", "Leter etter kassen"}},
    {OwnText::asking_release,
     {"Asking the register for its release", "Preguntando a la caja por su versión",
      "Lecture de la version de la caisse", "Die Kasse wird nach ihrer Version gefragt",
      "De kassa wordt naar haar versie gevraagd", "A perguntar à caixa a sua versão",
      "Kassen bliver spurgt om sin version", "Spør kassen om versjonen"}},
    {OwnText::reading_report,
     {"Reading the report %1", "Leyendo el informe %1", "Lecture du rapport %1", "Der Bericht %1 wird gelesen",
      "Het rapport %1 wordt gelezen", "A ler o relatório %1", "Rapporten %1 læses", "Rapporten %1 leses"}},
    {OwnText::looking_on_port,
     {"Looking for the register on port %1", "Buscando la caja en el puerto %1", "Recherche de la caisse sur le port %1",
      "Die Kasse wird an Anschluss %1 gesucht", "De kassa wordt op poort %1 gezocht", "A procurar a caixa na porta %1",
      "Kassen søges på port %1", "Leter etter kassen på port %1"}},
    {OwnText::go_on_without_port,
     {"Go on without a port", "Seguir sin puerto", "Continuer sans port", "Ohne Anschluss weiter",
      "Doorgaan zonder poort", "Continuar sem porta", "Fortsæt uden port", "Fortsett uten port"}},
    {OwnText::emulated_register,
     {"An emulated register, a %1, came with the program. F1 tells how to link a real one.",
      "Con el programa viene una caja emulada, una %1. F1 explica cómo conectar una de verdad.",
      "Une caisse émulée, une %1, est fournie avec le programme. F1 explique comment en relier une vraie.",
      "Mit dem Programm kam eine nachgebildete Kasse, eine %1. F1 sagt, wie man eine echte anschließt.",
      "Bij het programma hoort een nagebootste kassa, een %1. F1 vertelt hoe u een echte aansluit.",
      "Com o programa vem uma caixa simulada, uma %1. F1 explica como ligar uma verdadeira.",
      "Med programmet følger en emuleret kasse, en %1. F1 fortæller, hvordan en rigtig tilsluttes.",
      "Med programmet følger en emulert kasse, en %1. F1 forteller hvordan en ekte kobles til."}},
    {OwnText::view,
     {"View", "Ver", "Afficher", "Ansehen", "Bekijken", "Ver", "Vis", "Vis"}},
    {OwnText::report_viewer,
     {"Report viewer", "Visor de informes", "Visualiseur de rapports", "Berichtsansicht", "Rapportweergave",
      "Visualizador de relatórios", "Rapportvisning", "Rapportvisning"}},
    {OwnText::report,
     {"Report", "Informe", "Rapport", "Bericht", "Rapport", "Relatório", "Rapport", "Rapport"}},
    {OwnText::export_of_file,
     {"Export", "Exportación", "Export", "Export", "Export", "Exportação", "Eksport", "Eksport"}},
    {OwnText::find,
     {"Find", "Buscar", "Rechercher", "Suchen", "Zoeken", "Procurar", "Søg", "Søk"}},
    {OwnText::only_rows_with_figures,
     {"Only rows with figures", "Solo filas con cifras", "Seulement les lignes chiffrées", "Nur Zeilen mit Zahlen",
      "Alleen rijen met cijfers", "Só linhas com valores", "Kun rækker med tal", "Bare rader med tall"}},
    {OwnText::previous,
     {"Previous", "Anterior", "Précédent", "Voriger", "Vorige", "Anterior", "Forrige", "Forrige"}},
    {OwnText::next,
     {"Next", "Siguiente", "Suivant", "Nächster", "Volgende", "Seguinte", "Næste", "Neste"}},
    {OwnText::print,
     {"Print...", "Imprimir...", "Imprimer...", "Drucken...", "Afdrukken...", "Imprimir...", "Udskriv...",
      "Skriv ut..."}},
    {OwnText::ways_to_look,
     {"Ways to look at the report", "Maneras de ver el informe", "Façons de voir le rapport", "Ansichten des Berichts",
      "Weergaven van het rapport", "Formas de ver o relatório", "Visninger af rapporten", "Visninger av rapporten"}},
    {OwnText::the_receipt,
     {"The receipt", "El tique", "Le ticket", "Der Bon", "De bon", "O talão", "Bonen", "Kvitteringen"}},
    {OwnText::report_as_table,
     {"The report as a table", "El informe como tabla", "Le rapport en tableau", "Der Bericht als Tabelle",
      "Het rapport als tabel", "O relatório em tabela", "Rapporten som tabel", "Rapporten som tabell"}},
    {OwnText::sums_of_rows,
     {"Sums of the rows on show", "Sumas de las filas a la vista", "Sommes des lignes affichées",
      "Summen der gezeigten Zeilen", "Sommen van de getoonde rijen", "Somas das linhas à vista",
      "Summer af de viste rækker", "Summer av radene som vises"}},
    {OwnText::report_as_pictures,
     {"The report as pictures", "El informe en gráficos", "Le rapport en graphiques", "Der Bericht in Diagrammen",
      "Het rapport in grafieken", "O relatório em gráficos", "Rapporten i diagrammer", "Rapporten i diagrammer"}},
    {OwnText::table,
     {"Table", "Tabla", "Tableau", "Tabelle", "Tabel", "Tabela", "Tabel", "Tabell"}},
    {OwnText::pictures,
     {"Pictures", "Gráficos", "Graphiques", "Diagramme", "Grafieken", "Gráficos", "Diagrammer", "Diagrammer"}},
    {OwnText::receipts,
     {"Receipts", "Tiques", "Tickets", "Bons", "Bonnen", "Talões", "Boner", "Kvitteringer"}},
    {OwnText::rows_shown,
     {"%1 of %2 rows", "%1 de %2 filas", "%1 lignes sur %2", "%1 von %2 Zeilen", "%1 van %2 rijen", "%1 de %2 linhas",
      "%1 af %2 rækker", "%1 av %2 rader"}},
    {OwnText::nothing_exported,
     {"No report has been exported yet.", "Aún no se ha exportado ningún informe.",
      "Aucun rapport n'a encore été exporté.", "Es wurde noch kein Bericht exportiert.",
      "Er is nog geen rapport geëxporteerd.", "Ainda não foi exportado nenhum relatório.",
      "Der er endnu ikke eksporteret nogen rapport.", "Ingen rapport er eksportert ennå."}},
    {OwnText::no_receipt,
     {"No receipt", "Ningún tique", "Aucun ticket", "Kein Bon", "Geen bon", "Nenhum talão", "Ingen bon",
      "Ingen kvittering"}},
    {OwnText::not_found,
     {"Not found", "No encontrado", "Non trouvé", "Nicht gefunden", "Niet gevonden", "Não encontrado", "Ikke fundet",
      "Ikke funnet"}},
    {OwnText::receipt_of_several,
     {"Receipt %1 of %2", "Tique %1 de %2", "Ticket %1 sur %2", "Bon %1 von %2", "Bon %1 van %2", "Talão %1 de %2",
      "Bon %1 af %2", "Kvittering %1 av %2"}},
    {OwnText::not_printed,
     {"The report could not be printed.", "No se ha podido imprimir el informe.",
      "Le rapport n'a pas pu être imprimé.", "Der Bericht konnte nicht gedruckt werden.",
      "Het rapport kon niet worden afgedrukt.", "Não foi possível imprimir o relatório.",
      "Rapporten kunne ikke udskrives.", "Rapporten kunne ikke skrives ut."}},
    {OwnText::save_as_pdf,
     {"Save as PDF", "Guardar como PDF", "Enregistrer en PDF", "Als PDF speichern", "Opslaan als PDF",
      "Guardar como PDF", "Gem som PDF", "Lagre som PDF"}},
    {OwnText::not_written,
     {"The file could not be written.", "No se ha podido escribir el archivo.", "Le fichier n'a pas pu être écrit.",
      "Die Datei konnte nicht geschrieben werden.", "Het bestand kon niet worden geschreven.",
      "Não foi possível escrever o ficheiro.", "Filen kunne ikke skrives.", "Filen kunne ikke skrives."}},
    {OwnText::reports_not_written,
     {"Not written: %1. Another program may have the file open.",
      "No se ha escrito: %1. Puede que otro programa tenga el archivo abierto.",
      "Non écrit : %1. Un autre programme a peut-être ouvert le fichier.",
      "Nicht geschrieben: %1. Vielleicht hat ein anderes Programm die Datei geöffnet.",
      "Niet geschreven: %1. Misschien heeft een ander programma het bestand geopend.",
      "Não escrito: %1. Outro programa pode ter o ficheiro aberto.",
      "Ikke skrevet: %1. Måske har et andet program filen åben.",
      "Ikke skrevet: %1. Kanskje har et annet program filen åpen."}},
    {OwnText::total,
     {"Total", "Total", "Total", "Kennzahl", "Totaal", "Total", "Total", "Total"}},
    {OwnText::sum,
     {"Sum", "Suma", "Somme", "Summe", "Som", "Soma", "Sum", "Sum"}},
    {OwnText::clerk_number,
     {"Clerk %1", "Vendedor %1", "Vendeur %1", "Bediener %1", "Bediener %1", "Operador %1", "Ekspedient %1",
      "Ekspeditør %1"}},
    {OwnText::value,
     {"Value", "Valor", "Valeur", "Wert", "Waarde", "Valor", "Værdi", "Verdi"}},
    {OwnText::department,
     {"Department", "Departamento", "Rayon", "Warengruppe", "Afdeling", "Secção", "Varegruppe", "Varegruppe"}},
    {OwnText::item,
     {"Item", "Artículo", "Article", "Artikel", "Artikel", "Artigo", "Vare", "Vare"}},
    {OwnText::hour,
     {"Hour", "Hora", "Heure", "Stunde", "Uur", "Hora", "Time", "Time"}},
    {OwnText::in_the_drawer,
     {"In the drawer", "En el cajón", "Dans le tiroir", "In der Kasse", "In de lade", "Na gaveta", "I skuffen",
      "I skuffen"}},
    {OwnText::sales_by_medium,
     {"Sales by payment medium", "Ventas por forma de pago", "Ventes par moyen de paiement", "Umsatz nach Zahlungsart",
      "Omzet per betaalwijze", "Vendas por meio de pagamento", "Salg pr. betalingsmiddel",
      "Salg per betalingsmiddel"}},
    {OwnText::vat_by_rate,
     {"VAT by rate", "IVA por tipo", "TVA par taux", "MwSt nach Satz", "Btw per tarief", "IVA por taxa",
      "Moms pr. sats", "Mva per sats"}},
    {OwnText::sales_by_department,
     {"Sales by department", "Ventas por departamento", "Ventes par rayon", "Umsatz nach Warengruppe",
      "Omzet per afdeling", "Vendas por secção", "Salg pr. varegruppe", "Salg per varegruppe"}},
    {OwnText::department_number,
     {"Department %1", "Departamento %1", "Rayon %1", "Warengruppe %1", "Afdeling %1", "Secção %1", "Varegruppe %1",
      "Varegruppe %1"}},
    {OwnText::list_number,
     {"List %1", "Lista %1", "Liste %1", "Liste %1", "Lijst %1", "Lista %1", "Liste %1", "Liste %1"}},
    {OwnText::net_sales_by_clerk,
     {"Net sales by clerk", "Ventas netas por vendedor", "Ventes nettes par vendeur", "Nettoumsatz nach Bediener",
      "Netto-omzet per bediener", "Vendas líquidas por operador", "Nettosalg pr. ekspedient",
      "Nettosalg per ekspeditør"}},
    {OwnText::best_sellers,
     {"Best sellers", "Los más vendidos", "Meilleures ventes", "Meistverkaufte Artikel", "Bestverkochte artikelen",
      "Artigos mais vendidos", "Bedst sælgende varer", "Varer som selger best"}},
    {OwnText::worst_sellers,
     {"Worst sellers", "Los menos vendidos", "Moins bonnes ventes", "Am wenigsten verkaufte Artikel",
      "Slechtst verkochte artikelen", "Artigos menos vendidos", "Dårligst sælgende varer",
      "Varer som selger dårligst"}},
    {OwnText::sales_by_hour,
     {"Sales by hour", "Ventas por hora", "Ventes par heure", "Umsatz nach Stunde", "Omzet per uur",
      "Vendas por hora", "Salg pr. time", "Salg per time"}},
    {OwnText::receipts_by_hour,
     {"Receipts by hour", "Tiques por hora", "Tickets par heure", "Bons nach Stunde", "Bonnen per uur",
      "Talões por hora", "Boner pr. time", "Kvitteringer per time"}},
    {OwnText::cash,
     {"Cash", "Efectivo", "Espèces", "Bar", "Contant", "Numerário", "Kontant", "Kontant"}},
    {OwnText::check,
     {"Check", "Cheque", "Chèque", "Scheck", "Cheque", "Cheque", "Check", "Sjekk"}},
    {OwnText::charge,
     {"Charge", "Crédito", "Crédit", "Kredit", "Op rekening", "Crédito", "Kredit", "Kreditt"}},
    {OwnText::credit_number,
     {"Credit %1", "Tarjeta %1", "Carte %1", "Karte %1", "Kaart %1", "Cartão %1", "Kort %1", "Kort %1"}},
    {OwnText::vat_number,
     {"VAT %1", "IVA %1", "TVA %1", "MwSt %1", "Btw %1", "IVA %1", "Moms %1", "Mva %1"}},
    {OwnText::play,
     {"Play", "Reproducir", "Lire", "Abspielen", "Afspelen", "Reproduzir", "Afspil", "Spill av"}},
    {OwnText::stop,
     {"Stop", "Detener", "Arrêter", "Anhalten", "Stoppen", "Parar", "Stop", "Stopp"}},
    {OwnText::while_you_type,
     {"%1 while you type", "%1 mientras escribe", "%1 pendant la saisie", "%1 beim Tippen", "%1 tijdens het typen",
      "%1 enquanto escreve", "%1, mens du skriver", "%1 mens du skriver"}},
    {OwnText::display,
     {"Display", "Visor", "Afficheur", "Anzeige", "Display", "Visor", "Display", "Display"}},
    {OwnText::short_caption_list,
     {"Short captions", "Textos cortos", "Textes courts", "Kurze Texte", "Korte teksten", "Textos curtos",
      "Korte tekster", "Korte tekster"}},
    {OwnText::no_file_chosen,
     {"No file chosen", "Ningún archivo elegido", "Aucun fichier choisi", "Keine Datei gewählt", "Geen bestand gekozen",
      "Nenhum ficheiro escolhido", "Ingen fil valgt", "Ingen fil valgt"}},
    {OwnText::logo_place,
     {"The logo stands here", "Aquí va el logotipo", "Le logo se place ici", "Hier steht das Logo",
      "Hier staat het logo", "O logótipo fica aqui", "Her står logoet", "Her står logoen"}},
    {OwnText::open_journal,
     {"Open an electronic journal file", "Abrir un archivo de diario electrónico",
      "Ouvrir un fichier de journal électronique", "Eine Datei des elektronischen Journals öffnen",
      "Een bestand van het elektronisch journaal openen", "Abrir um ficheiro do diário eletrónico",
      "Åbn en fil med en elektronisk journal", "Åpne en fil med en elektronisk journal"}},
    {OwnText::path,
     {"Path", "Ruta", "Chemin", "Pfad", "Pad", "Caminho", "Sti", "Sti"}},
    {OwnText::preview,
     {"Preview", "Vista previa", "Aperçu", "Vorschau", "Voorbeeld", "Pré-visualização", "Eksempel",
      "Forhåndsvisning"}},
    {OwnText::logo_that_fits,
     {"The register takes a black-and-white bitmap of exactly %1 bytes: %2 dots wide and %3 high, one bit for each "
      "dot, without compression.",
      "La caja acepta un mapa de bits en blanco y negro de exactamente %1 bytes: %2 puntos de ancho y %3 de alto, un "
      "bit por punto, sin compresión.",
      "La caisse accepte un bitmap en noir et blanc d'exactement %1 octets\u00A0: %2 points de large et %3 de haut, un "
      "bit par point, sans compression.",
      "Die Kasse nimmt eine schwarzweiße Bitmap von genau %1 Byte: %2 Punkte breit und %3 hoch, ein Bit je Punkt, ohne "
      "Komprimierung.",
      "De kassa neemt een zwart-witte bitmap van precies %1 bytes: %2 punten breed en %3 hoog, één bit per punt, "
      "zonder compressie.",
      "A caixa aceita um mapa de bits a preto e branco com exatamente %1 bytes: %2 pontos de largura e %3 de altura, "
      "um bit para cada ponto, sem compressão.",
      "Kassen tager en sort-hvid bitmap på præcis %1 byte: %2 punkter bred og %3 høj, én bit pr. punkt, uden "
      "komprimering.",
      "Kassen tar en svart-hvitt bitmap på nøyaktig %1 byte: %2 punkter bred og %3 høy, én bit per punkt, uten "
      "komprimering."}},
    {OwnText::logo_cannot_be_shown,
     {"The file has the right length, but it cannot be shown: it may be no bitmap, and the register's converter will "
      "refuse it.",
      "El archivo tiene la longitud correcta, pero no se puede mostrar: quizá no sea un mapa de bits, y el conversor "
      "de la caja lo rechazará.",
      "Le fichier a la bonne longueur, mais ne peut pas être affiché\u00A0: ce n'est peut-être pas un bitmap, et le "
      "convertisseur de la caisse le refusera.",
      "Die Datei hat die richtige Länge, lässt sich aber nicht zeigen: Vielleicht ist sie keine Bitmap, und der "
      "Umwandler der Kasse wird sie ablehnen.",
      "Het bestand heeft de juiste lengte, maar kan niet worden getoond: misschien is het geen bitmap, en de omzetter "
      "van de kassa zal het weigeren.",
      "O ficheiro tem o tamanho certo, mas não pode ser mostrado: talvez não seja um mapa de bits, e o conversor da "
      "caixa vai recusá-lo.",
      "Filen har den rigtige længde, men kan ikke vises: den er måske ikke en bitmap, og kassens konvertering vil "
      "afvise den.",
      "Filen har riktig lengde, men kan ikke vises: den er kanskje ikke en bitmap, og kassens konvertering vil avvise "
      "den."}},
    {OwnText::logo_size,
     {"%1 dots wide and %2 high.", "%1 puntos de ancho y %2 de alto.", "%1 points de large et %2 de haut.",
      "%1 Punkte breit und %2 hoch.", "%1 punten breed en %2 hoog.", "%1 pontos de largura e %2 de altura.",
      "%1 punkter bred og %2 høj.", "%1 punkter bred og %2 høy."}},
    {OwnText::logo_too_many_colours,
     {"%1 dots wide and %2 high, but not one bit for each dot: the register's converter will refuse it.",
      "%1 puntos de ancho y %2 de alto, pero no un bit por punto: el conversor de la caja lo rechazará.",
      "%1 points de large et %2 de haut, mais pas un bit par point\u00A0: le convertisseur de la caisse le refusera.",
      "%1 Punkte breit und %2 hoch, aber nicht ein Bit je Punkt: Der Umwandler der Kasse wird sie ablehnen.",
      "%1 punten breed en %2 hoog, maar niet één bit per punt: de omzetter van de kassa zal het weigeren.",
      "%1 pontos de largura e %2 de altura, mas não um bit para cada ponto: o conversor da caixa vai recusá-lo.",
      "%1 punkter bred og %2 høj, men ikke én bit pr. punkt: kassens konvertering vil afvise den.",
      "%1 punkter bred og %2 høy, men ikke én bit per punkt: kassens konvertering vil avvise den."}},
    {OwnText::logo_blank_in_path,
     {"The path has a blank in it, so the logo cannot be sent from there.",
      "La ruta contiene un espacio, así que el logotipo no se puede enviar desde ahí.",
      "Le chemin contient une espace\u00A0: le logo ne peut pas être envoyé de là.",
      "Im Pfad steht ein Leerzeichen, darum lässt sich das Logo von dort nicht senden.",
      "In het pad staat een spatie, dus het logo kan van daar niet worden gestuurd.",
      "O caminho contém um espaço, por isso o logótipo não pode ser enviado a partir daí.",
      "Der er et mellemrum i stien, så logoet kan ikke sendes derfra.",
      "Det er et mellomrom i stien, så logoen kan ikke sendes derfra."}},
    {OwnText::journal_records,
     {"A journal file of %1 records.", "Un archivo de diario con %1 registros.",
      "Un fichier de journal de %1 enregistrements.", "Eine Journaldatei mit %1 Sätzen.",
      "Een journaalbestand met %1 records.", "Um ficheiro do diário com %1 registos.", "En journalfil med %1 poster.",
      "En journalfil med %1 poster."}},
};
// clang-format on

/// All tables as one, in the order of the enum.
constexpr auto rows = [] {
  std::array<OwnTextRow, own_text_count> all{};
  auto* end = std::copy(std::begin(own_texts_of_screens), std::end(own_texts_of_screens), all.begin());
  end = std::copy(std::begin(own_texts_of_fields), std::end(own_texts_of_fields), end);
  if (end != all.end()) throw "a row for each text";
  return all;
}();

constexpr bool is_complete() {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (static_cast<std::size_t>(rows[i].text) != i) return false;
    for (const std::string_view text : rows[i].in) {
      if (text.empty()) return false;
    }
  }
  return true;
}
static_assert(is_complete(), "a row for each text, in their order, and in each row no language without words");
static_assert(std::tuple_size_v<decltype(OwnTextRow::in)> == std::tuple_size_v<decltype(languages)>);

/// What the table has is plain UTF-8 of up to two bytes a letter.
constexpr bool is_narrow() {
  for (const OwnTextRow& row : rows) {
    for (const std::string_view text : row.in) {
      for (const char byte : text) {
        if (static_cast<unsigned char>(byte) >= 0xE0) return false;
      }
    }
  }
  return true;
}
static_assert(is_narrow(), "own_bytes reads letters of one or two bytes");

std::optional<OwnText> words_of(Work work) {
  switch (work) {
    case Work::unnamed:
      return std::nullopt;
    case Work::looking_for_ports:
      return OwnText::looking_for_ports;
    case Work::looking_for_register:
      return OwnText::looking_for_register;
    case Work::asking_release:
      return OwnText::asking_release;
    case Work::reading_programming:
      return OwnText::reading_programming;
    case Work::sending_programming:
      return OwnText::sending_programming;
    case Work::reading_items:
      return OwnText::reading_items;
    case Work::sending_items:
      return OwnText::sending_items;
    case Work::taking_in_items:
      return OwnText::taking_in_items;
    case Work::reading_report:
      return OwnText::reading_report;
    case Work::converting_logo:
      return OwnText::converting_logo;
    case Work::sending_logo:
      return OwnText::sending_logo;
  }
  return std::nullopt;
}

}  // namespace

std::string_view own_text(OwnText text) {
  const auto& in = rows[static_cast<std::size_t>(text)].in;
  return LanguageNumber < in.size() ? in[LanguageNumber] : in.front();
}

std::string own_bytes(OwnText text, std::string_view first) {
  const std::string_view utf8 = own_text(text);
  std::u16string letters;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if (byte < 0x80) {
      letters += static_cast<char16_t>(byte);
    } else {
      letters += static_cast<char16_t>((byte & 0x1F) << 6 | (static_cast<unsigned char>(utf8[++i]) & 0x3F));
    }
  }
  std::string bytes = bytes_of(letters);
  if (const std::size_t found = bytes.find(place_of_first); found != std::string::npos) {
    bytes.replace(found, place_of_first.size(), first);
  }
  return bytes;
}

std::string own_bytes_of_work(const WorkInHand& what) {
  const std::optional<OwnText> words = words_of(what.work);
  return words ? own_bytes(*words, what.name) : std::string{};
}

}  // namespace ecr
